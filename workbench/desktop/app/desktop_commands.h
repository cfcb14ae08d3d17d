#pragma once

namespace workbench {
class CommandRegistry;
}

namespace workbench::desktop {

class MainWindow;

/// The commands for what the window's menus do with documents: NEW, OPEN, QSAVE, SAVEAS, CLOSE, QUIT.
/// Each does its work once the host has come to rest behind it.
class DesktopCommands {
public:
    explicit DesktopCommands(MainWindow& window);
    DesktopCommands(const DesktopCommands&) = delete;
    DesktopCommands& operator=(const DesktopCommands&) = delete;
    ~DesktopCommands();

private:
    CommandRegistry& m_registry;
};

}  // namespace workbench::desktop
