#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/tool_panel.h>

/// Base of the custom controls: a small tool panel that stands in a row of a dashboard panel.
class CVxDaPanelGroupCtrl : public ModuleWindow<CQrUiToolPanel> {
public:
    // CWnd:
    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onToolkitQuery(WPARAM unused, LPARAM unusedToo);
};
