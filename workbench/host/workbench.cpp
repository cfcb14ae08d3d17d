#include "workbench/host/workbench.h"

#include "workbench/commands/host_commands.h"
#include "workbench/editor/editor.h"
#include "workbench/host/bar_memory.h"
#include "workbench/host/connections.h"
#include "workbench/host/customization_command.h"
#include "workbench/loader/module_loader.h"
#include "workbench/menu/menu_host.h"
#include "workbench/navigation/navigation_tool.h"
#include "workbench/palettes/tool_palettes.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/profiles/user_registry.h"
#include "workbench/toolbar/toolbar_controls.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <stdexcept>
#include <utility>

namespace workbench {

Workbench* Workbench::s_living = nullptr;

Workbench::Workbench(WorkbenchOptions options) : m_options(std::move(options)) {
    if (s_living != nullptr)
        throw std::logic_error("a workbench lives already");
    s_living = this;
    try {
        makeUnits();
    } catch (...) {
        endUnits();
        s_living = nullptr;
        throw;
    }
}

Workbench::~Workbench() {
    endUnits();
    s_living = nullptr;
}

void Workbench::complainOfNone() {
    throw std::logic_error("no workbench lives");
}

void Workbench::makeUnits() {
    m_windows = std::make_unique<WindowSystem>(m_clock, m_journal);
    m_modules = std::make_unique<ModuleLoader>(m_options.libraryDir, m_faults);
    m_toolkit = std::make_unique<Toolkit>(*m_windows, m_journal, m_answers, m_texts);
    m_profiles = std::make_unique<ProfileStore>(m_options.profileDir, m_journal);
    m_userRegistry = std::make_unique<UserRegistry>(*m_profiles);
    m_barMemory = std::make_unique<BarMemory>(*m_toolkit, *m_profiles);
    m_editor = std::make_unique<Editor>(m_journal, m_answers, *m_profiles, m_modules->registry());
    addHostCommands(m_editor->commands());
    m_menu = std::make_unique<MenuHost>(m_options.panelFile, m_modules->libraries());
    addCustomizationCommand(m_editor->commands(), m_menu->customization());
    m_toolPalettes = std::make_unique<ToolPalettes>(*m_menu, *m_windows);
    m_navigation = std::make_unique<NavigationTool>(*m_editor, *m_modules, m_journal);
    m_toolbarControls = std::make_unique<ToolbarControls>(*m_toolkit, *m_editor, *m_menu);
    connectUnits(*this);
}

/// Unloads what is still loaded while all units live, then ends them in the opposite order of their
/// making; each may still use those made before it.
void Workbench::endUnits() {
    if (m_modules != nullptr)
        m_modules->unloadAll();
    if (m_toolkit != nullptr)
        disconnectUnits(*m_toolkit);
    m_toolbarControls.reset();
    m_navigation.reset();
    m_toolPalettes.reset();
    m_menu.reset();
    m_editor.reset();
    m_barMemory.reset();
    m_userRegistry.reset();
    m_profiles.reset();
    m_toolkit.reset();
    m_modules.reset();
    if (m_windows != nullptr)
        m_windows->life().abandonAll();
    m_windows.reset();
}

}  // namespace workbench
