#pragma once

#include "controls/input_context_reactor.h"

#include <hostapi/window/wnd.h>

#include <map>
#include <memory>
#include <vector>

class CQrUiToolPanelItem;
class VxApDocument;

/// The registry of custom controls: makes them by name and owns them, takes the clicks on the
/// module's own tools, keeps the list of hidden items, and runs actions at quiet moments.
class CVxDaControlMgr : public CObject {
public:
    CVxDaControlMgr() = default;
    ~CVxDaControlMgr() override;

    /// A new control in a parent window. Null for an empty or unknown name and if the control could
    /// not be made.
    HWND createControl(const VxString& name, CWnd* parent);
    /// Destroys and deletes all controls.
    void releaseControls();
    /// Brings up the two watchers of visual styles, counted.
    void acquireStyleReactors();

    /// Handles a click on an item of this module. Answers 1 for an item it has no use for.
    int handleToolClick(CQrUiToolPanelItem* item);

    /// Adds IDs to, or takes them off, the list of hidden items; IDs are exact. Whether the list
    /// changed.
    BOOL setItemsHidden(const CStringArray& ids, bool add);
    /// Whether an ID is on the list of hidden items.
    bool isItemHidden(const VxString& id) const;

    /// A system variable changed.
    void onSysVarChanged(const wchar_t* name, BOOL success);
    /// A command ended.
    void onCommandEnded(const wchar_t* name);

    /// Runs an action at once if no command is active. Otherwise stops the command and queues the
    /// action until the current document's command processor rests; without a document it is
    /// dropped.
    void runWhenQuiescent(std::unique_ptr<VxDaCmdUtil::InputContextReactor::Callback> callback);
    /// Drops a document's reactor with the actions that wait in it.
    void removeDocumentReactor(VxApDocument* document);

private:
    using InputContextReactor = VxDaCmdUtil::InputContextReactor;

    InputContextReactor& documentReactor(VxApDocument* document);
    bool hideItems(const CStringArray& ids);
    bool unhideItems(const CStringArray& ids);

    std::vector<std::unique_ptr<CWnd>> m_controls;
    CStringArray m_hiddenItemIds;
    std::map<VxApDocument*, std::unique_ptr<InputContextReactor>> m_documentReactors;
};
