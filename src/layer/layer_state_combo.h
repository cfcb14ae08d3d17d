#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/combo.h>
#include <hostapi/qrui18/tool_tip.h>
#include <hostapi/vxdb18/database.h>

#include <memory>

class VxApDocument;

/// List of the saved layer states, with the one selected that the drawing is in. A choice restores a
/// state or opens one of the host's two dialogs about them.
class CVxDaLayerStateComboCtrl final : public ModuleWindow<CQrUiComboCtrl> {
public:
    /// A new control with its window, as wide as `rect`. Null if the window can't be made.
    static std::unique_ptr<CWnd> make(CWnd* parent, const CRect& rect, UINT id);

    CVxDaLayerStateComboCtrl();
    ~CVxDaLayerStateComboCtrl() override;

    /// Reads the states anew.
    void rebuild();

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL PreTranslateMessage(MSG* msg) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onCommandEnded(WPARAM unused, LPARAM name);
    LRESULT onLastDocumentDestroyed(WPARAM unused, LPARAM document);
    LRESULT onDocumentCurrent(WPARAM unused, LPARAM document);
    LRESULT onDocumentToBeActivated(WPARAM unused, LPARAM document);
    LRESULT onOwnNotice(WPARAM notice, LPARAM control);

    void buildLayerStateList();
    void addStates(const CStringArray& names);
    void addRow(const VxString& text, BOOL separator = 0);
    void readLastRestored(VxDbDatabase& database);
    void enable();
    void selectNone();
    void selectText(const VxString& text);
    void onSelected();
    void openDialog(int (*dialog)(CWnd* owner));
    void restoreState(int row);
    void onRestored(Zorq::ErrorStatus status, int row, const VxString& name,
                    const VxDbObjectIdArray& layers);
    void sendRestoreCommand(const VxString& name, const VxDbObjectIdArray& layers);

    VxString m_lastRestored;                   // empty if the drawing is in no saved state
    const VxApDocument* m_document = nullptr;  // that the list is of; not owned, only compared
    CQrToolTipCtrl m_toolTip;
};
