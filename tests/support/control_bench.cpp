#include "tests/support/control_bench.h"

#include "tests/resources/loaded_module.h"
#include "workbench/base/text.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/resources/resource_library.h"
#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace support {

namespace gestures = workbench::gestures;

void ControlBench::useMenuOf(const std::string& control, int count) {
    const std::string item = R"({"type": "control", "control": ")" + control + R"("})";
    std::string items = item;
    for (int i = 1; i < count; ++i)
        items += R"(, {"type": "rowBreak"}, )" + item;
    useMenu(R"({"menuGroups": [{"name": "MAIN"}], "panels": [{"menuGroup": "MAIN", "id": "P",
        "title": "P", "toolPanels": ["TP"]}], "toolPanels": [{"menuGroup": "MAIN", "id": "TP",
        "items": [)" +
            items + R"(]}], "workspaces": [{"name": "W", "panels": [{"menuGroup": "MAIN",
        "panel": "P"}]}], "currentWorkspace": "W"})");
}

void ControlBench::showControl(const std::string& name) {
    if (!hasMenu())
        useMenuOf(name);
    m_firstRects.emplace(bench().windows());
    showDashboard();
    m_name = name;
    m_control = control(name);
    ASSERT_NE(m_control, nullptr) << name;
    takeSent();
    takeJournal();
}

void ControlBench::rebuildControl() {
    notify(kDashboardReleaseControls);
    notify(kDashboardUnload);
    notify(kDashboardReload);
    m_control = control(m_name);
    ASSERT_NE(m_control, nullptr) << m_name;
}

void ControlBench::drag(const std::vector<int>& positions) {
    gestures::dragSlider(bench().toolkit(), slider(), positions);
    settle();
}

void ControlBench::release() {
    gestures::releaseSlider(bench().toolkit(), slider());
    settle();
}

void ControlBench::clickIcon() {
    gestures::clickIcon(bench().toolkit(), m_control);
    settle();
}

void ControlBench::focusField(const std::string& name) {
    ASSERT_TRUE(gestures::focusField(bench().toolkit(), field(name)));
    settle();
}

void ControlBench::put(const std::wstring& text, const std::string& name) {
    focusField(name);
    gestures::replaceText(bench().toolkit(), text);
    settle();
}

void ControlBench::press(const std::string& key) {
    gestures::pressKey(bench().toolkit(), key);
    settle();
}

void ControlBench::enter(const std::wstring& text, const std::string& name) {
    put(text, name);
    press("enter");
}

void ControlBench::leave() {
    gestures::blur(bench().toolkit());
    settle();
}

void ControlBench::announce(const wchar_t* variable) {
    bench().editor().reactors().sysVarChanged(variable, true);
}

LRESULT ControlBench::send(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = bench().windows().send(m_control, message, wParam, lParam);
    settle();
    return answer;
}

workbench::Value ControlBench::db(const std::string& path) {
    return workbench::drawing::getByPath(bench().editor().documents().current()->data(), path);
}

void ControlBench::setDb(const std::string& path, const workbench::Value& value) {
    workbench::drawing::setByPath(bench().editor().documents().current()->data(), path, value);
}

int ControlBench::position() {
    return dynamic_cast<workbench::SliderWidget*>(bench().windows().find(slider())->widget.get())
        ->position();
}

std::wstring ControlBench::text(const std::string& name) {
    return bench().windows().find(field(name))->text;
}

std::wstring ControlBench::tipOf(HWND part) {
    const auto* widget =
        dynamic_cast<workbench::ControlWidget*>(bench().windows().find(part)->widget.get());
    return widget == nullptr ? std::wstring() : widget->tip();
}

std::wstring ControlBench::stringOf(UINT number) {
    const LoadedModule module("VxDashboardRes.dll");
    const workbench::ResourceLibrary library(module.directory());
    return workbench::toWide(library.findString(number).value_or("missing"));
}

std::wstring ControlBench::filled(UINT number, const std::vector<std::wstring>& inserts) {
    constexpr std::wstring_view kInsert = L"%ls";
    std::wstring text = stringOf(number);
    std::size_t from = 0;
    for (const std::wstring& insert : inserts) {
        const std::size_t place = text.find(kInsert, from);
        if (place == std::wstring::npos)
            return L"no place for " + insert;
        text.replace(place, kInsert.size(), insert);
        from = place + insert.size();
    }
    return text;
}

std::wstring ControlBench::balloonText() {
    return bench().toolkit().balloons().textOf(m_control);
}

HWND ControlBench::balloonTarget() {
    return bench().toolkit().balloons().targetOf(m_control);
}

bool ControlBench::hasThemeFont(HWND part) {
    constexpr int kFontPointer = 2;
    const workbench::Theme* theme = bench().toolkit().themes().find(L"ToolPanel");
    const auto* font = static_cast<const CFont*>(theme->dataPtr(kFontPointer));
    return font != nullptr && bench().windows().find(part)->font == font->GetSafeHandle();
}

bool ControlBench::isEnabled(HWND part) {
    return bench().windows().takesInput(part);
}

bool ControlBench::hasFocus(HWND part) {
    return bench().windows().focus() == part;
}

std::size_t ControlBench::takeCount(const std::string& call) {
    const std::vector<std::string> made = takeCalls();
    return static_cast<std::size_t>(std::count(made.begin(), made.end(), call));
}

}  // namespace support
