#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/combo.h>
#include <hostapi/qrui18/tool_tip.h>

#include <memory>

class VxApDocument;

/// List of the text heights that the current drawing has used. All of these share one list for each
/// document; a text style with a height of its own takes over and keeps the list shut.
class CVxDaTextHeightComboCtrl final : public ModuleWindow<CQrUiComboCtrl> {
public:
    /// A new control with its window, as wide as `rect`. Null if the window can't be made.
    static std::unique_ptr<CWnd> make(CWnd* parent, const CRect& rect, UINT id);

    CVxDaTextHeightComboCtrl();
    ~CVxDaTextHeightComboCtrl() override;

    // CWnd:
    const MessageMap& GetMessageMap() const override;
    BOOL PreTranslateMessage(MSG* msg) override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onDestroy(WPARAM unused, LPARAM unusedToo);
    LRESULT onMousePress(WPARAM keys, LPARAM point);
    LRESULT onDocumentCurrent(WPARAM unused, LPARAM document);
    LRESULT onDocumentEnds(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onCommandEnded(WPARAM unused, LPARAM name);
    LRESULT onOwnNotice(WPARAM notice, LPARAM control);

    static void FillAllLists();
    static void DropDocument(const VxApDocument* document);
    void ActivateDocument(const VxApDocument* document);
    void FillList();
    void clearList();
    void addHeights();
    void selectText(const VxString& text);
    void onSelected();

    CQrToolTipCtrl m_toolTip;
};
