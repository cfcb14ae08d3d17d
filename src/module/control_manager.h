#pragma once

#include "controls/input_context_reactor.h"
#include "core/roof.h"

#include <hostapi/window/wnd.h>

#include <map>
#include <memory>
#include <vector>

class VxApDocument;

/// The registry of custom controls: makes them by name and owns them, takes the clicks on the
/// module's own tools, keeps the list of hidden items, and runs actions at quiet moments.
class CVxDaControlMgr : public CObject, public ControlRoof {
public:
    CVxDaControlMgr() = default;
    ~CVxDaControlMgr() override;

    /// Drops what waits for a quiet moment and releases the controls; from then on it makes no control
    /// and runs no action. The object's end does the same, if it wasn't called before.
    void leaveService();
    /// Destroys and deletes all controls; one whose handler is running ends after it.
    void releaseControls();
    /// Brings up the watcher of visual styles, counted.
    void acquireStyleReactors();

    /// A system variable changed.
    void onSysVarChanged(const wchar_t* name, BOOL success);
    /// A command ended.
    void onCommandEnded(const wchar_t* name);

    /// Drops a document's reactor with the actions that wait in it.
    void removeDocumentReactor(VxApDocument* document);

    // ControlRoof:
    HWND createControl(const VxString& name, CWnd* parent) override;
    int handleToolClick(CQrUiToolPanelItem* item) override;
    BOOL setItemsHidden(const CStringArray& ids, bool add) override;
    bool isItemHidden(const VxString& id) const override;
    void runWhenQuiescent(std::unique_ptr<QuiescentAction> action) override;

private:
    using InputContextReactor = VxDaCmdUtil::InputContextReactor;

    InputContextReactor& documentReactor(VxApDocument* document);
    bool hideItems(const CStringArray& ids);
    bool unhideItems(const CStringArray& ids);

    bool m_inService = true;
    std::vector<std::unique_ptr<CWnd>> m_controls;
    CStringArray m_hiddenItemIds;
    std::map<VxApDocument*, std::unique_ptr<InputContextReactor>> m_documentReactors;
};
