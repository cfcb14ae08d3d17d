#include "tests/hostile/hostile_menu.h"

#include "tests/hostile/attack.h"
#include "workbench/base/text.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace hostile {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kGroup = "ZORQ";
constexpr const char* kToolPanel = "HostileTools";

Json& panelOf(Json& menu, const char* id) {
    for (Json& panel : menu["panels"]) {
        if (panel["id"] == id)
            return panel["toolPanels"];
    }
    throw std::runtime_error(std::string("the example menu has no panel ") + id);
}

Json toolPanel() {
    const std::string module = workbench::toUtf8(kModule);
    return {
        {"menuGroup", kGroup},
        {"id", kToolPanel},
        {"items",
         {{{"type", "button"},
           {"id", workbench::toUtf8(kTool)},
           {"name", "Strike"},
           {"image", "RCDATA_TOOL_ID_LIGHT"},
           {"module", module}},
          {{"type", "rowBreak"}},
          {{"type", "control"}, {"control", workbench::toUtf8(kControl)}, {"module", module}}}}};
}

}  // namespace

std::string hostileMenu() {
    std::ifstream file(PROJECT_SOURCE_ROOT "/examples/panels.json");
    Json menu = Json::parse(file);
    menu["toolPanels"].push_back(toolPanel());
    Json& first = panelOf(menu, "Layers");
    first.insert(first.begin(), kToolPanel);
    panelOf(menu, "Navigation").push_back(kToolPanel);
    menu["panels"].push_back({{"menuGroup", kGroup},
                              {"id", "Hostile"},
                              {"title", "Hostile"},
                              {"toolPanels", {kToolPanel}}});
    return menu.dump();
}

}  // namespace hostile
