#include "bench/session.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/support/allocation_counter.h"
#include "workbench/editor/editor.h"

#include <nlohmann/json.hpp>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace bench {

namespace {

using Json = nlohmann::json;

constexpr const char* kMenuGroup = "BENCH";

Json toolPanelOf(const std::string& id, int items, int controls) {
    Json rows = Json::array();
    for (int i = 0; i < items; ++i) {
        rows.push_back({{"type", "button"},
                        {"id", id + "_ITEM" + std::to_string(i)},
                        {"name", "A tool"},
                        {"macro", "_line\n"}});
    }
    for (int i = 0; i < controls; ++i) {
        rows.push_back({{"type", "control"}, {"control", "LayerLockTransparencySliderControl"}});
    }
    return {{"id", id}, {"menuGroup", kMenuGroup}, {"items", rows}};
}

workbench::WorkbenchOptions optionsFor(const std::filesystem::path& menuFile) {
    workbench::WorkbenchOptions options;
    options.libraryDir = WORKBENCH_BIN_DIR;
    options.panelFile = menuFile;
    return options;
}

/// A menu that shows a panel for each of the tool panels.
std::string menuOfPanels(const Json& toolPanels) {
    Json menu{{"menuGroups", Json::array({{{"name", kMenuGroup}}})},
              {"toolPanels", toolPanels},
              {"panels", Json::array()}};
    Json visible = Json::array();
    for (const Json& toolPanel : toolPanels) {
        const Json& id = toolPanel["id"];
        menu["panels"].push_back({{"id", id},
                                  {"title", id},
                                  {"menuGroup", kMenuGroup},
                                  {"toolPanels", Json::array({id})}});
        visible.push_back({{"panel", id}, {"menuGroup", kMenuGroup}});
    }
    menu["workspaces"] = Json::array({{{"name", "All"}, {"panels", visible}}});
    menu["currentWorkspace"] = "All";
    return menu.dump();
}

}  // namespace

std::string menuOf(int panels, int items, int controls) {
    Json toolPanels = Json::array();
    for (int i = 0; i < panels; ++i)
        toolPanels.push_back(toolPanelOf("PANEL" + std::to_string(i), items, controls));
    return menuOfPanels(toolPanels);
}

std::string menuWith(const std::vector<std::string>& tools,
                     const std::vector<std::string>& controls) {
    Json items = Json::array();
    for (const std::string& tool : tools)
        items.push_back({{"type", "button"}, {"id", tool}, {"name", tool}, {"macro", "_line\n"}});
    for (const std::string& control : controls)
        items.push_back({{"type", "control"}, {"control", control}});
    return menuOfPanels(
        Json::array({{{"id", "PANEL"}, {"menuGroup", kMenuGroup}, {"items", items}}}));
}

Session::MenuFile::MenuFile(const std::string& text) {
    std::string name = (std::filesystem::temp_directory_path() / "vxbench-XXXXXX").string();
    const int file = mkstemp(name.data());
    if (file < 0)
        std::abort();
    close(file);
    m_path = name;
    std::ofstream(m_path) << text;
}

Session::MenuFile::~MenuFile() {
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

Session::Session(const std::string& menuText)
    : m_menuFile(menuText),
      m_workbench(optionsFor(m_menuFile.path())) {
    m_workbench.journal().setRecording(false);
    loadModule(nullptr);
    m_workbench.editor().documents().create(L"Drawing1");
}

Session::~Session() {
    unloadModule();
}

void Session::showDashboard() {
    dashboardManager()->showDashboard();
}

AllocationMeter::AllocationMeter() : m_start(support::allocationCount()) {}

double AllocationMeter::allocations() const {
    return static_cast<double>(support::allocationCount() - m_start);
}

}  // namespace bench
