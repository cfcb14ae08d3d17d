#include "workbench/host/dashboard_state.h"

#include "workbench/base/text.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"

#include <utility>

namespace workbench {

namespace {

constexpr const wchar_t* kVariable = L"DASHBOARDSTATE";

/// A bar is the dashboard's if the dashboard's module has registered its tool.
bool isDashboard(Toolkit& toolkit, const CQrUiPaletteSet& set) {
    const PaletteSetState* const state = toolkit.paletteSets().find(&set);
    const ToolRegistry::Tool* const tool =
        state == nullptr ? nullptr : toolkit.tools().find(state->toolId);
    return tool != nullptr && equalNoCase(tool->moduleName, kDashboardModule);
}

}  // namespace

DashboardState::DashboardState(Editor& editor, Toolkit& toolkit)
    : m_editor(editor),
      m_toolkit(toolkit) {
    m_editor.reactors().add(this);
}

DashboardState::~DashboardState() {
    m_editor.reactors().remove(this);
}

void DashboardState::barShown(const CQrUiPaletteSet& set, bool shown) {
    if (!isDashboard(m_toolkit, set))
        return;
    m_untold = shown;
    const Document* const document = m_editor.documents().current();
    if (document == nullptr || !document->processor().isAtWork())
        tell();
}

void DashboardState::commandEnded(const wchar_t* /*name*/) {
    tell();
}

void DashboardState::commandCancelled(const wchar_t* /*name*/) {
    tell();
}

void DashboardState::commandFailed(const wchar_t* /*name*/) {
    tell();
}

void DashboardState::tell() {
    const std::optional<bool> shown = std::exchange(m_untold, std::nullopt);
    if (!shown)
        return;
    const Value state = *shown ? 1 : 0;
    if (m_editor.read(kVariable) != state)
        m_editor.set(kVariable, state);
}

}  // namespace workbench
