#include "workbench/menu/menu_reader.h"

#include "workbench/base/json_parser.h"
#include "workbench/base/json_view.h"
#include "workbench/menu/flyout_graph.h"
#include "workbench/menu/menu_item_reader.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace workbench {

namespace {

std::string inGroup(const std::string& menuGroup) {
    return " in menu group " + inQuotes(menuGroup);
}

/// Reads the sections in the order in which they refer to each other, whatever their order in the
/// file, so that each reference is checked where it is read.
class MenuReader {
public:
    explicit MenuReader(const MenuReadOptions& options) : m_options(options) {}

    MenuData read(const JsonView& root);

private:
    using GroupAndId = std::pair<std::string, std::string>;

    struct Flyout {
        std::size_t from;  // position of the tool panel on which it stands
        std::size_t to;    // position of the tool panel that it opens
        JsonView item;
    };

    void readMenuGroups(const JsonView& view);
    void readToolPanels(const JsonView& view);
    void readItems(const JsonView& view, MenuToolPanel& toolPanel);
    void linkFlyouts(const JsonView& view);
    void refuseFlyoutCycles() const;
    void readPanels(const JsonView& view);
    void readWorkspaces(const JsonView& view);
    void readVisiblePanels(const JsonView& view, Workspace& workspace);
    void readCurrentWorkspace(const JsonObjectView& root);
    void readToolPaletteGroups(const JsonView& view);
    std::string readMenuGroupName(const JsonObjectView& object) const;

    const MenuReadOptions& m_options;
    MenuData m_data;
    std::set<std::string> m_menuGroups;
    std::map<GroupAndId, std::size_t> m_toolPanels;  // to the position in m_data
    std::set<GroupAndId> m_panels;
    std::set<std::string> m_workspaces;
    std::vector<Flyout> m_flyouts;
};

MenuData MenuReader::read(const JsonView& root) {
    const JsonObjectView sections = root.object({"menuGroups", "toolPanels", "panels", "workspaces",
                                                 "currentWorkspace", "toolPaletteGroups"});
    readMenuGroups(sections.at("menuGroups"));
    readToolPanels(sections.at("toolPanels"));
    readPanels(sections.at("panels"));
    if (const std::optional<JsonView> workspaces = sections.find("workspaces"))
        readWorkspaces(*workspaces);
    readCurrentWorkspace(sections);
    if (const std::optional<JsonView> schemes = sections.find("toolPaletteGroups"))
        readToolPaletteGroups(*schemes);
    return std::move(m_data);
}

void MenuReader::readMenuGroups(const JsonView& view) {
    for (const JsonView& entry : view.array()) {
        const JsonObjectView object = entry.object({"name", "resourceModule"});
        const JsonView name = object.at("name");
        if (!m_menuGroups.insert(name.name()).second)
            name.fail("a second menu group " + inQuotes(name.name()));
        m_data.menuGroups.push_back({name.name(), object.stringOr("resourceModule")});
    }
}

void MenuReader::readToolPanels(const JsonView& view) {
    for (const JsonView& entry : view.array()) {
        const JsonObjectView object = entry.object({"menuGroup", "id", "items"});
        const JsonView id = object.at("id");
        MenuToolPanel toolPanel;
        toolPanel.menuGroup = readMenuGroupName(object);
        toolPanel.id = id.name();
        const GroupAndId key(toolPanel.menuGroup, toolPanel.id);
        if (!m_toolPanels.try_emplace(key, m_data.toolPanels.size()).second)
            id.fail("a second tool panel " + inQuotes(toolPanel.id) + inGroup(toolPanel.menuGroup));
        readItems(object.at("items"), toolPanel);
        m_data.toolPanels.push_back(std::move(toolPanel));
    }
    linkFlyouts(view);
    if (!m_options.allowFlyoutCycles)
        refuseFlyoutCycles();
}

void MenuReader::readItems(const JsonView& view, MenuToolPanel& toolPanel) {
    for (const JsonView& entry : view.array())
        toolPanel.items.push_back(readMenuItem(entry));
}

void MenuReader::linkFlyouts(const JsonView& view) {
    std::size_t from = 0;
    for (const JsonView& entry : view.array()) {
        const MenuToolPanel& toolPanel = m_data.toolPanels[from];
        std::size_t position = 0;
        for (const JsonView& item : entry.object().at("items").array()) {
            const MenuItem& read = toolPanel.items[position++];
            if (read.type != MenuItemType::Flyout)
                continue;
            const auto target = m_toolPanels.find({toolPanel.menuGroup, read.flyoutId});
            if (target == m_toolPanels.end()) {
                item.object().at("flyout").fail("no tool panel " + inQuotes(read.flyoutId) +
                                                inGroup(toolPanel.menuGroup));
            }
            m_flyouts.push_back({from, target->second, item});
        }
        ++from;
    }
}

void MenuReader::refuseFlyoutCycles() const {
    FlyoutGraph graph(m_data.toolPanels.size());
    for (const Flyout& flyout : m_flyouts)
        graph[flyout.from].push_back(flyout.to);
    const std::vector<std::size_t> cycle = findFlyoutCycle(graph);
    if (cycle.empty())
        return;
    std::string path;
    for (const std::size_t toolPanel : cycle)
        path += (path.empty() ? "" : " > ") + m_data.toolPanels[toolPanel].id;
    const std::size_t last = cycle[cycle.size() - 2];
    const auto closing =
        std::find_if(m_flyouts.begin(), m_flyouts.end(), [&cycle, last](const Flyout& flyout) {
            return flyout.from == last && flyout.to == cycle.front();
        });
    closing->item.fail("the flyout leads back to itself: " + path);
}

void MenuReader::readPanels(const JsonView& view) {
    for (const JsonView& entry : view.array()) {
        const JsonObjectView object =
            entry.object({"menuGroup", "id", "title", "image", "toolPanels"});
        const JsonView id = object.at("id");
        MenuPanel panel;
        panel.menuGroup = readMenuGroupName(object);
        panel.id = id.name();
        panel.title = object.at("title").name();
        panel.image = object.stringOr("image");
        if (!m_panels.insert({panel.menuGroup, panel.id}).second)
            id.fail("a second panel " + inQuotes(panel.id) + inGroup(panel.menuGroup));
        for (const JsonView& toolPanel : object.at("toolPanels").array()) {
            if (!m_toolPanels.contains({panel.menuGroup, toolPanel.name()}))
                toolPanel.fail("no tool panel " + inQuotes(toolPanel.name()) +
                               inGroup(panel.menuGroup));
            panel.toolPanels.push_back(toolPanel.name());
        }
        m_data.panels.push_back(std::move(panel));
    }
}

void MenuReader::readWorkspaces(const JsonView& view) {
    for (const JsonView& entry : view.array()) {
        const JsonObjectView object = entry.object({"name", "panels"});
        const JsonView name = object.at("name");
        if (!m_workspaces.insert(name.name()).second)
            name.fail("a second workspace " + inQuotes(name.name()));
        Workspace workspace{name.name(), {}};
        readVisiblePanels(object.at("panels"), workspace);
        m_data.workspaces.push_back(std::move(workspace));
    }
}

void MenuReader::readVisiblePanels(const JsonView& view, Workspace& workspace) {
    std::set<GroupAndId> listed;
    for (const JsonView& entry : view.array()) {
        const JsonObjectView object = entry.object({"panel", "menuGroup"});
        const JsonView panel = object.at("panel");
        const GroupAndId key(readMenuGroupName(object), panel.name());
        if (!m_panels.contains(key))
            panel.fail("no panel " + inQuotes(panel.name()) + inGroup(key.first));
        if (!listed.insert(key).second)
            panel.fail("panel " + inQuotes(panel.name()) + " stands twice in one workspace");
        workspace.visiblePanels.push_back({panel.name(), key.first});
    }
}

void MenuReader::readCurrentWorkspace(const JsonObjectView& root) {
    const std::optional<JsonView> current = root.find("currentWorkspace");
    if (!current && m_workspaces.empty())
        return;
    const JsonView name = root.at("currentWorkspace");
    if (!m_workspaces.contains(name.name()))
        name.fail("no workspace " + inQuotes(name.name()));
    m_data.currentWorkspace = name.name();
}

void MenuReader::readToolPaletteGroups(const JsonView& view) {
    const JsonObjectView schemes = view.object();
    for (const std::string& name : schemes.keys()) {
        ToolPaletteScheme scheme{name, {}};
        for (const JsonView& group : schemes.at(name).array())
            scheme.groups.push_back(group.name());
        m_data.toolPaletteSchemes.push_back(std::move(scheme));
    }
}

std::string MenuReader::readMenuGroupName(const JsonObjectView& object) const {
    const JsonView name = object.at("menuGroup");
    if (!m_menuGroups.contains(name.name()))
        name.fail("no menu group " + inQuotes(name.name()));
    return name.name();
}

}  // namespace

MenuData readMenuText(std::string_view text, const std::string& place,
                      const MenuReadOptions& options) {
    const JsonValue root = parseJson(text, place);
    return MenuReader(options).read(JsonView(root, place));
}

MenuData readMenuFile(const std::filesystem::path& file, const MenuReadOptions& options) {
    return readMenuText(readWholeFile(file), file.string(), options);
}

}  // namespace workbench
