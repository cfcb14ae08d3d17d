#include "palette/menu_lines.h"

#include "core/resources.h"

void appendCommand(CMenu& menu, UINT command, UINT label) {
    menu.AppendMenu(MF_STRING, command, loadDashboardString(label).c_str());
}

void appendPopup(CMenu& menu, const CMenu& popup, UINT label) {
    menu.AppendMenu(MF_POPUP, reinterpret_cast<std::uintptr_t>(popup.m_hMenu),
                    loadDashboardString(label).c_str());
}
