#pragma once

#include "workbench/windows/window_system.h"

#include <hostapi/vxtcui.h>
#include <hostapi/window.h>

#include <string>
#include <vector>

namespace workbench {

/// The window of tool palettes: it shows the palettes of one group, whose name is its text.
class ToolPaletteWindow final : public CVxTcUiToolPaletteSet {
public:
    explicit ToolPaletteWindow(WindowSystem& windows);
    ToolPaletteWindow(const ToolPaletteWindow&) = delete;
    ToolPaletteWindow& operator=(const ToolPaletteWindow&) = delete;

    /// Offers the groups of a scheme and goes on with the shown one if the scheme has it, or else
    /// with the scheme's first.
    void setGroups(std::vector<std::wstring> groups);
    void show(bool visible);
    bool isOnScreen() const;
    /// The group on show; empty for none.
    const std::wstring& activeGroup() const { return m_activeGroup; }

    // CVxTcUiToolPaletteSet:
    BOOL SetActivePaletteGroup(const VxString& group) override;

private:
    void showGroup(const std::wstring& group);

    WindowSystem& m_windows;
    CWnd m_window;
    std::vector<std::wstring> m_groups;
    std::wstring m_activeGroup;
};

}  // namespace workbench
