#pragma once

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/zorq/editor.h>

#include <optional>

namespace workbench {

class Editor;
class Toolkit;

/// Keeps the variable DASHBOARDSTATE at whether the dashboard's bar is shown. What a command does to
/// the bar is told when the command has ended: until then the bar may not have its panels yet.
class DashboardState final : private VxEditorReactor {
public:
    /// Both must outlive it.
    DashboardState(Editor& editor, Toolkit& toolkit);
    DashboardState(const DashboardState&) = delete;
    DashboardState& operator=(const DashboardState&) = delete;
    ~DashboardState() override;

    /// A bar was shown, hidden or ended; others than the dashboard's are ignored.
    void barShown(const CQrUiPaletteSet& set, bool shown);

private:
    // VxEditorReactor:
    void commandEnded(const wchar_t* name) override;
    void commandCancelled(const wchar_t* name) override;
    void commandFailed(const wchar_t* name) override;

    void tell();

    Editor& m_editor;
    Toolkit& m_toolkit;
    std::optional<bool> m_untold;  // nothing: the variable has the present state
};

}  // namespace workbench
