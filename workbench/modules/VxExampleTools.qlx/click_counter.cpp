#include "workbench/modules/VxExampleTools.qlx/click_counter.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <string>

void ClickCounter::count(CQrUiToolPanelItem& item) {
    ++m_clicks;
    const wchar_t* const noun = m_clicks == 1 ? L" click" : L" clicks";
    item.SetName(std::to_wstring(m_clicks) + noun);
    item.Invalidate();
}
