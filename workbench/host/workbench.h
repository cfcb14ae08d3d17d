#pragma once

#include "workbench/core/answers.h"
#include "workbench/core/call_desk.h"
#include "workbench/core/clock.h"
#include "workbench/core/faults.h"
#include "workbench/core/journal.h"
#include "workbench/host/host_texts.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace workbench {

class BarMemory;
class Editor;
class MenuHost;
class ModuleLoader;
class NavigationTool;
class ProfileStore;
class Toolkit;
class ToolbarControls;
class ToolPalettes;
class UserRegistry;
class WindowSystem;

/// The file name of the dashboard's module.
inline constexpr const wchar_t* kDashboardModule = L"VxDashboard.qlx";

/// What a workbench is started with.
struct WorkbenchOptions {
    std::filesystem::path libraryDir;  ///< where modules and resource libraries are found
    std::filesystem::path panelFile;   ///< the menu data; empty: a host without menu data
    std::filesystem::path
        profileDir;                ///< where profiles live; empty: a temporary folder of its own
    std::string locale = "en_US";  ///< the user's language and formats
};

/// A stand-in host: the composition of its units. Each unit has one job and a header of its own;
/// this class only makes them in their order and ends them in the opposite one.
///
/// The functions that the product calls have no object to turn to, so one workbench at a time is
/// the current one: from its construction to its end.
class Workbench {
public:
    /// Throws InputError for menu data or profiles that can't be taken, and std::logic_error while
    /// another workbench lives.
    explicit Workbench(WorkbenchOptions options);
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    /// Unloads what is still loaded.
    ~Workbench();

    /// The workbench that lives now. Throws std::logic_error if there is none.
    static Workbench& current() {
        if (s_living == nullptr)
            complainOfNone();
        return *s_living;
    }
    /// The workbench that lives now, null for none: for what may end after it.
    static Workbench* living() { return s_living; }

    const WorkbenchOptions& options() const { return m_options; }
    /// The user's language and formats from now on, such as "de_DE".
    void setLocale(std::string locale) { m_options.locale = std::move(locale); }

    /// Writes a picture of the dashboard to a PNG file; throws InputError. Null: there is no screen
    /// to take one from.
    using Photographer = std::function<void(const std::filesystem::path& file)>;
    void setPhotographer(Photographer photographer) { m_photographer = std::move(photographer); }
    const Photographer& photographer() const { return m_photographer; }
    Clock& clock() { return m_clock; }
    Journal& journal() { return m_journal; }
    Faults& faults() { return m_faults; }
    Answers& answers() { return m_answers; }
    WindowSystem& windows() { return *m_windows; }
    ModuleLoader& modules() { return *m_modules; }
    Toolkit& toolkit() { return *m_toolkit; }
    ProfileStore& profiles() { return *m_profiles; }
    UserRegistry& userRegistry() { return *m_userRegistry; }
    Editor& editor() { return *m_editor; }
    MenuHost& menu() { return *m_menu; }
    ToolPalettes& toolPalettes() { return *m_toolPalettes; }
    NavigationTool& navigation() { return *m_navigation; }
    ToolbarControls& toolbarControls() { return *m_toolbarControls; }

private:
    [[noreturn]] static void complainOfNone();
    void makeUnits();
    void endUnits();

    static Workbench* s_living;  // not owned; null: none lives

    WorkbenchOptions m_options;
    Photographer m_photographer;
    Clock m_clock;
    Journal m_journal{m_clock};
    Faults m_faults;
    CallDesk m_callDesk{m_journal, m_faults};
    Answers m_answers;
    HostTexts m_texts{*this};
    std::unique_ptr<WindowSystem> m_windows;
    std::unique_ptr<ModuleLoader> m_modules;
    std::unique_ptr<Toolkit> m_toolkit;
    std::unique_ptr<ProfileStore> m_profiles;
    std::unique_ptr<UserRegistry> m_userRegistry;
    std::unique_ptr<BarMemory> m_barMemory;
    std::unique_ptr<Editor> m_editor;
    std::unique_ptr<MenuHost> m_menu;
    std::unique_ptr<ToolPalettes> m_toolPalettes;
    std::unique_ptr<NavigationTool> m_navigation;
    std::unique_ptr<ToolbarControls> m_toolbarControls;
};

}  // namespace workbench
