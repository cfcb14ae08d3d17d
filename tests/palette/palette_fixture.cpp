#include "tests/palette/palette_fixture.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/support/call_lines.h"
#include "workbench/base/text.h"
#include "workbench/core/journal.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

const char* const kTestMenu = R"({
  "menuGroups": [{"name": "MAIN"}, {"name": "OTHER", "resourceModule": "HouseTools.xmx"}],
  "panels": [
    {"menuGroup": "MAIN", "id": "Draw", "title": "Drawing", "image": "RCDATA_PANEL_DRAW",
     "toolPanels": ["DrawTools", "DrawControls"]},
    {"menuGroup": "MAIN", "id": "Layers", "title": "Layers", "toolPanels": ["LayerTools"]},
    {"menuGroup": "OTHER", "id": "Draw", "title": "House", "image": "RCDATA_PANEL_HOUSETOOLS",
     "toolPanels": ["HouseTools"]},
    {"menuGroup": "MAIN", "id": "Spare", "title": "Spare", "toolPanels": []}],
  "workspaces": [
    {"name": "Work", "panels": [{"panel": "Layers", "menuGroup": "MAIN"},
                                {"panel": "Draw", "menuGroup": "MAIN"}]},
    {"name": "House", "panels": [{"panel": "Draw", "menuGroup": "OTHER"}]}],
  "currentWorkspace": "Work",
  "toolPaletteGroups": {"ToolPaletteScheme": ["Doors", "ALL palettes", "Windows"]},
  "toolPanels": [
    {"menuGroup": "MAIN", "id": "DrawTools", "items": [
      {"type": "button", "id": "ID_Line", "image": "RCDATA_TOOL_ID_LINE", "macro": "_line\n"},
      {"type": "separator"},
      {"type": "flyout", "id": "TPL_A", "flyout": "TPL_A", "image": "RCDATA_TOOL_ID_ERASE"},
      {"type": "rowBreak"},
      {"type": "flyout", "id": "TPL_Own", "flyout": "TPL_B", "ownImage": true,
       "image": "RCDATA_TOOL_ID_ERASE"}]},
    {"menuGroup": "MAIN", "id": "DrawControls", "items": [
      {"type": "control", "id": "LINETYPEcontrol", "control": "LayerLockTransparencySliderControl"},
      {"type": "control", "id": "Broken", "control": "NoSuchControl"},
      {"type": "control", "id": "Foreign", "control": "ExampleScaleControl",
       "module": "VxExampleTools.qlx"},
      {"type": "control", "id": "Lost", "control": "ExampleScaleControl", "module": "Gone.qlx"}]},
    {"menuGroup": "MAIN", "id": "LayerTools", "items": [
      {"type": "button", "id": "ID_Line", "macro": "_line\n"},
      {"type": "button", "id": "ID_ExampleCount", "module": "VxExampleTools.qlx"},
      {"type": "button", "id": "ID_Lost", "module": "Gone.qlx"},
      {"type": "button", "id": "ID_Own", "module": "vxdashboard.QLX", "macro": "_own\n"},
      {"type": "button", "id": "ID_Idle"}]},
    {"menuGroup": "MAIN", "id": "TPL_A", "items": [
      {"type": "button", "id": "ID_A1", "image": "RCDATA_TOOL_ID_LINE", "macro": "_a1\n"},
      {"type": "button", "id": "ID_A2", "macro": "_a2\n"},
      {"type": "flyout", "id": "TPL_Inner", "flyout": "TPL_B"},
      {"type": "button", "id": "ID_A3"}]},
    {"menuGroup": "MAIN", "id": "TPL_B", "items": [{"type": "button", "id": "ID_B1"}]},
    {"menuGroup": "OTHER", "id": "HouseTools", "items": [
      {"type": "button", "id": "TPL_A"},
      {"type": "button", "id": "ID_Wall", "image": "RCDATA_TOOL_HT_WALL"}]}]
})";

PaletteTest::PaletteTest(const std::string& menu) {
    workbench::WorkbenchOptions options;
    options.libraryDir = WORKBENCH_BIN_DIR;
    options.panelFile = m_folder.write("panels.json", menu);
    m_workbench = std::make_unique<workbench::Workbench>(options);
    m_workbench->editor().documents().create(L"Drawing1");
}

PaletteTest::~PaletteTest() = default;

void PaletteTest::TearDown() {
    if (!m_loaded)
        return;
    unloadModule();
    // The example module keeps its controls until it goes.
    bench().modules().unloadAll();
    EXPECT_EQ(bench().toolkit().liveItems(), 0);
    EXPECT_EQ(bench().toolkit().panels().size(), 0U);
    EXPECT_EQ(bench().toolkit().themes().heldCount(), 0);
    EXPECT_EQ(bench().windows().menus().liveCount(), 0U);
    EXPECT_EQ(bench().windows().gdi().iconCount(), 0U);
    EXPECT_EQ(bench().windows().gdi().fontCount(), 0U);
}

void PaletteTest::load() {
    loadModule(nullptr);
    m_loaded = true;
}

void PaletteTest::show() {
    load();
    showLoaded();
}

void PaletteTest::showLoaded() {
    ASSERT_EQ(dashboardManager()->showDashboard(), 1);
    settle();
    forget();
}

CVxDaDashboard& PaletteTest::dashboard() {
    return *dashboardManager()->dashboard();
}

CVxDaPanelSet& PaletteTest::panelSet() {
    return *dashboardManager()->panelSet();
}

CVxDaPanel* PaletteTest::panel(const VxString& menuGroup, const VxString& id) {
    for (const HWND window : bench().windows().descendants(panelSet().m_hWnd)) {
        auto* found = dynamic_cast<CVxDaPanel*>(CWnd::FromHandle(window));
        if (found != nullptr && found->GetID() == id && found->menuGroup() == menuGroup) {
            return found;
        }
    }
    return nullptr;
}

std::vector<std::string> PaletteTest::shown() {
    VxDaPanelList list;
    panelSet().getVisiblePanels(list);
    std::vector<std::string> names;
    for (const auto& [id, menuGroup] : list) {
        names.push_back(workbench::toUtf8(menuGroup + L"/" + id));
    }
    return names;
}

CQrUiToolPanelItem* PaletteTest::item(std::wstring_view id, std::size_t n) {
    const VxDaToolPanelItems* items = panelSet().findToolPanelItems(id);
    return items == nullptr || n >= items->size() ? nullptr : (*items)[n];
}

VxToolPanelItemData& PaletteTest::itemData(const VxString& menuGroup, const VxString& toolPanel,
                                           std::size_t n) {
    return *vxedGetToolPanelData(menuGroup, toolPanel)->at(n);
}

std::vector<workbench::MenuLine> PaletteTest::menuOf(CVxDaPanel& panel) {
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_EQ(panel.AddContextMenuItems(menu), 1);
    return bench().windows().menus().read(menu.m_hMenu);
}

std::vector<workbench::MenuLine> PaletteTest::menuOfDashboard() {
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_EQ(dashboard().AddContextMenuItems(menu), 1);
    return bench().windows().menus().read(menu.m_hMenu);
}

void PaletteTest::settle() {
    bench().windows().queue().runPosted();
}

void PaletteTest::forget() {
    bench().journal().take();
}

namespace {

bool isCall(const workbench::JournalRecord& record, std::string_view name) {
    const std::string quoted = "\"name\":\"" + std::string(name) + "\"";
    return record.kind == "call" && toJsonLine(record).find(quoted) != std::string::npos;
}

}  // namespace

std::vector<std::string> PaletteTest::takeLines() {
    return support::callLines(bench().journal().take());
}

std::vector<std::string> PaletteTest::takeLines(const std::vector<std::string_view>& names) {
    return support::callLines(bench().journal().take(), names);
}

int PaletteTest::callCount(std::string_view name) {
    const auto& records = bench().journal().records();
    return static_cast<int>(
        std::count_if(records.begin(), records.end(),
                      [name](const auto& record) { return isCall(record, name); }));
}

std::string PaletteTest::lastCall(std::string_view name) {
    std::string line;
    for (const workbench::JournalRecord& record : bench().journal().records()) {
        if (isCall(record, name))
            line = toJsonLine(record);
    }
    return line;
}

std::vector<std::string> PaletteTest::sent() {
    std::vector<std::string> lines;
    for (const workbench::JournalRecord& record : bench().journal().records()) {
        if (record.kind == "command")
            lines.push_back(toJsonLine(record));
    }
    return lines;
}

void PaletteTest::fail(std::string_view call, int count) {
    bench().faults().fail(call, std::nullopt, count);
}

void PaletteTest::failSecond(std::string_view call, std::optional<int> status) {
    m_failing = bench().journal().addListener(
        [this, name = std::string(call), status](const workbench::JournalRecord& record) {
            if (!isCall(record, name))
                return;
            bench().faults().fail(name, status, 1);
            m_failing = {};
        });
}

std::vector<std::string> labels(const std::vector<workbench::MenuLine>& lines) {
    std::vector<std::string> texts;
    for (const workbench::MenuLine& line : lines) {
        texts.push_back(line.separator ? "-"
                                       : (line.checked ? "*" : "") + workbench::toUtf8(line.text));
    }
    return texts;
}

std::vector<workbench::MenuLine> popup(const std::vector<workbench::MenuLine>& lines,
                                       std::wstring_view label) {
    for (const workbench::MenuLine& line : lines) {
        if (line.text == label)
            return line.children;
    }
    return {};
}

ProbeWindow::ProbeWindow(CWnd& parent) {
    workbench::WindowCreation creation;
    creation.className = "Probe";
    creation.style = WS_CHILD | WS_VISIBLE;
    creation.parent = parent.m_hWnd;
    workbench::Workbench::current().windows().create(*this, std::move(creation));
}

LRESULT ProbeWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr UINT kFirstOwnNumber = WM_IDLEUPDATECMDUI;
    if (message < kFirstOwnNumber)
        return CWnd::WindowProc(message, wParam, lParam);
    got.push_back({message, wParam, lParam});
    return answer;
}

HRESULT Stranger::QueryInterface(const GUID& /*interfaceId*/, void** object) {
    *object = nullptr;
    return E_NOINTERFACE;
}
