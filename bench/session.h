#pragma once

#include "workbench/host/workbench.h"

#include <filesystem>
#include <string>
#include <vector>

namespace bench {

/// Menu data with `panels` panels, each with one tool panel of `items` plain buttons and with
/// `controls` fade sliders, all of them in the one workspace. As a menu file's text.
std::string menuOf(int panels, int items, int controls = 0);
/// Menu data with one panel of certain tools and custom controls, by their IDs and names.
std::string menuWith(const std::vector<std::string>& tools,
                     const std::vector<std::string>& controls);

/// A workbench with a document in which the dashboard, linked into this program, is loaded. Nothing
/// is recorded in the journal.
class Session {
public:
    explicit Session(const std::string& menuText);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    /// Shows the dashboard with all its panels.
    void showDashboard();
    workbench::Workbench& workbench() { return m_workbench; }

private:
    class MenuFile {
    public:
        explicit MenuFile(const std::string& text);
        MenuFile(const MenuFile&) = delete;
        MenuFile& operator=(const MenuFile&) = delete;
        ~MenuFile();
        const std::filesystem::path& path() const { return m_path; }

    private:
        std::filesystem::path m_path;
    };

    MenuFile m_menuFile;
    workbench::Workbench m_workbench;
};

/// Counts what is allocated while it lives, per iteration of a benchmark.
class AllocationMeter {
public:
    AllocationMeter();
    /// Calls of `new` since the construction.
    double allocations() const;

private:
    std::size_t m_start;
};

}  // namespace bench
