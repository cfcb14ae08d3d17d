#include "tests/hostile/gesture.h"
#include "tests/hostile/host.h"
#include "workbench/base/text.h"
#include "workbench/core/faults.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/zorq/menu_data.h>

namespace hostile {

namespace {

constexpr const char* kNavigationModule = "VxVmTools.qlx";

CQrUiToolPanelItem& itemOf(const std::wstring& id) {
    const auto items = workbench::findItems(host().windows(), id);
    if (items.empty())
        throw workbench::gestures::GestureError("there is no item " + workbench::toUtf8(id));
    return *items.front();
}

void click(const std::wstring& id) {
    workbench::gestures::clickItem(host().toolkit(), itemOf(id));
    letRun();
}

/// The click comes while a command waits, which it cancels.
void clickDuringCommand(const std::wstring& id) {
    editor().beginCommand(L"LINE");
    letRun();
    click(id);
    editor().finishCommand(workbench::CommandState::Cancelled);
    letRun();
}

/// Tools with a module, and one with a macro of its own.
bool isTried(const VxToolPanelItemData& data) {
    return !data.module.empty() || data.id == L"ID_LayerManager";
}

/// The tools of animations say in a box that their module is missing; this one is never disabled.
void clickWithoutModule(const Stage& stage) {
    host().modules().unloadModule(workbench::toWide(kNavigationModule));
    host().faults().hide(kNavigationModule);
    host().toolkit().boxes().setPresenter([&stage](const std::wstring&, UINT) {
        stage.reach(Point::BoxOpen);
        return workbench::MessageBoxes::kOk;
    });
    click(L"ID_Animation_Settings");
    host().toolkit().boxes().setPresenter(nullptr);
    host().faults().unhide(kNavigationModule);
}

/// A flyout's list is open while the module strikes; the tool is chosen all the same.
void chooseFromFlyout(const Stage& stage, const std::wstring& flyout) {
    CQrUiToolPanelItem& item = itemOf(flyout);
    const HWND panel = workbench::toolPanelOf(item)->m_hWnd;
    CRect rect;
    item.GetRect(rect, kItemClientRect);
    host().toolkit().menus().answerNext([&stage](const std::vector<workbench::MenuLine>& lines) {
        stage.reach(Point::MenuOpen);
        return std::optional<UINT>(lines.back().command);
    });
    constexpr int kOnArrow = 3;  // pixels from the right edge
    const CPoint point{rect.right - kOnArrow, (rect.top + rect.bottom) / 2};
    host().toolkit().mouse().press(panel, point);
    host().toolkit().mouse().release(panel, point);
    host().toolkit().menus().answerNext(nullptr);
    letRun();
}

}  // namespace

std::vector<Gesture> toolGestures(const Stage& stage) {
    std::vector<Gesture> all;
    for (const CQrUiToolPanelItem* item : workbench::allItems(host().windows())) {
        const VxToolPanelItemData* const data = QrUiGetToolPanelItemData(item);
        if (data == nullptr || data->type != kItemButton || !isTried(*data))
            continue;
        const std::wstring id = data->id;
        const std::string name = workbench::toUtf8(id);
        all.push_back({"click " + name, [id] { click(id); }});
        all.push_back({"click during a command " + name, [id] { clickDuringCommand(id); }});
    }
    all.push_back({"click without the module", [&stage] { clickWithoutModule(stage); }});
    all.push_back({"choose the sky", [&stage] { chooseFromFlyout(stage, L"TPL_0030"); }});
    return all;
}

}  // namespace hostile
