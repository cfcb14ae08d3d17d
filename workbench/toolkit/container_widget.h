#pragma once

#include "workbench/toolkit/control_widget.h"

#include <memory>
#include <vector>

namespace workbench {

class WindowSystem;

/// A strip of controls side by side that share its width evenly. Their objects end
/// with the strip's window.
class ContainerWidget final : public ControlWidget {
public:
    explicit ContainerWidget(WindowSystem& windows) : m_windows(windows) {}

    void add(Window& window, std::unique_ptr<CWnd> control);
    void setMargin(Window& window, int pixels);
    int count() const { return static_cast<int>(m_controls.size()); }
    /// The control at an index, null outside.
    CWnd* control(int index) const;

    // ControlWidget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;
    int naturalHeight(const Window& window, int width) const override;

private:
    void layOut(const Window& window);
    void changeTheme(const Window& window, WPARAM wParam, LPARAM lParam);

    WindowSystem& m_windows;
    std::vector<std::unique_ptr<CWnd>> m_controls;
    int m_margin = 0;  // pixels between two controls
};

}  // namespace workbench
