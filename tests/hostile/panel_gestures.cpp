#include "tests/hostile/gesture.h"
#include "tests/hostile/host.h"
#include "workbench/core/answers.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/messages.h>

#include <vector>

namespace hostile {

namespace {

namespace gestures = workbench::gestures;
using workbench::MenuLine;

constexpr CPoint kOnTitle{40, 6};

CQrUiPanel& layerPanel() {
    const auto panels = workbench::findPanels(host().windows(), L"Layers");
    if (panels.empty())
        throw gestures::GestureError("there is no panel of layers");
    return *panels.front();
}

/// Opens a context menu; the module comes to it while it is open. Then the line of a path is
/// chosen; an empty path chooses none.
void useMenu(const Stage& stage, HWND window, const std::wstring& path) {
    gestures::requireOnScreen(host().toolkit(), window);
    host().toolkit().menus().answerNext(
        [&](const std::vector<MenuLine>& lines) -> std::optional<UINT> {
            stage.reach(Point::MenuOpen);
            const MenuLine* const line = workbench::findMenuLine(lines, path);
            return line == nullptr ? std::nullopt : std::optional(line->command);
        });
    host().toolkit().mouse().contextMenu(window, kOnTitle);
    host().toolkit().menus().answerNext(nullptr);
    letRun();
}

void togglePanel(const Stage& stage) {
    for (int time = 0; time < 2; ++time)
        useMenu(stage, bar().m_hWnd, L"Panels/Layers");
}

void hidePanel(const Stage& stage) {
    useMenu(stage, layerPanel().m_hWnd, L"Hide");
    useMenu(stage, bar().m_hWnd, L"Panels/Layers");
}

void rollPanel() {
    for (int time = 0; time < 2; ++time) {
        gestures::clickTitle(host().toolkit(), layerPanel());
        letRun();
    }
}

void hideAndShowBar() {
    host().toolkit().frame().close(bar());
    letRun();
    type(L"DASHBOARDOLD\n");
}

void floatAndDock() {
    workbench::MainFrame& frame = host().toolkit().frame();
    frame.floatAt(bar(), {200, 100, 480, 700});
    letRun();
    frame.dock(bar(), workbench::Edge::Left);
    letRun();
    frame.dock(bar(), workbench::Edge::Right);
    letRun();
}

void moveByMenu(const Stage& stage) {
    host().answers().queue("dialog", workbench::Value(workbench::Value::Table{{"x", 300}}));
    useMenu(stage, bar().m_hWnd, L"Move");
    host().answers().take("dialog");
    host().toolkit().frame().dock(bar(), workbench::Edge::Right);
    letRun();
}

void changeTheme() {
    host().toolkit().themes().find(L"ToolPanel")->changeElement(3);
    letRun();
}

void changeIconSize() {
    for (const int pixels : {32, 16}) {
        host().toolkit().setIconSize(pixels);
        changeTheme();
    }
}

void idle() {
    host().toolkit().idleUpdate();
    letRun();
}

/// The toolkit's queries to every control.
void askControls() {
    std::vector<HWND> controls;
    for (const CQrUiToolPanelItem* item : workbench::allItems(host().windows()))
        controls.push_back(item->GetControl());
    for (const HWND control : controls) {
        for (const UINT query :
             {WM_QRUI_KEEP_FOCUS, WM_QRUI_HAS_ICON, WM_QRUI_ROW_QUERY, WM_QRUI_LIST_DROPPED})
            SendMessage(control, query, 0, 0);
    }
}

/// The mouse goes over the dashboard with the keyboard in it, and leaves.
void hoverAndLeave() {
    const HWND slider = named("LayerLockTransparencySliderControl");
    gestures::hoverAt(host().toolkit(), slider, gestures::middleOf(host().toolkit(), slider));
    letRun();
    gestures::leave(host().toolkit());
    letRun();
}

}  // namespace

std::vector<Gesture> panelGestures(const Stage& stage) {
    return {
        {"read the panel's menu", [&stage] { useMenu(stage, layerPanel().m_hWnd, {}); }},
        {"read the bar's menu", [&stage] { useMenu(stage, bar().m_hWnd, {}); }},
        {"toggle a panel", [&stage] { togglePanel(stage); }},
        {"hide a panel by its menu", [&stage] { hidePanel(stage); }},
        {"move the bar by its menu", [&stage] { moveByMenu(stage); }},
        {"close the bar by its menu",
         [&stage] {
             useMenu(stage, bar().m_hWnd, L"Close");
             type(L"DASHBOARDOLD\n");
         }},
        {"roll a panel up and down", rollPanel},
        {"hide and show the bar", hideAndShowBar},
        {"float and dock the bar", floatAndDock},
        {"change the theme", changeTheme},
        {"change the size of icons", changeIconSize},
        {"idle", idle},
        {"wait", [] { wait(250); }},
        {"ask all controls", askControls},
        {"hover and leave", hoverAndLeave},
    };
}

}  // namespace hostile
