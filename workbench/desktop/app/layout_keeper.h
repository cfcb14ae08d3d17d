#pragma once

#include "workbench/toolkit/bar_place.h"

#include <QTimer>
#include <functional>
#include <string>
#include <vector>

namespace workbench {
class Toolkit;
}

namespace workbench::desktop {

/// Has the layout of the dashboard saved soon after its user changed it, so that it outlives a program
/// that ends without a word: once it has been the same for a second.
class LayoutKeeper {
public:
    /// The toolkit must outlive it. `save` keeps the present layout.
    LayoutKeeper(Toolkit& toolkit, std::function<void()> save);
    LayoutKeeper(const LayoutKeeper&) = delete;
    LayoutKeeper& operator=(const LayoutKeeper&) = delete;

    /// Takes the present layout for kept, and looks each second from now on.
    void start();
    /// Looks now.
    void look();

private:
    /// What is kept of the dashboard.
    struct Layout {
        std::vector<BarPlace> bars;
        std::vector<std::wstring> rolledUp;
        friend bool operator==(const Layout&, const Layout&) = default;
    };
    Layout present() const;

    Toolkit& m_toolkit;
    std::function<void()> m_save;
    Layout m_kept;
    Layout m_seen;  // at the last look
    QTimer m_timer;
};

}  // namespace workbench::desktop
