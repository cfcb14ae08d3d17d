#pragma once

#include "palette/dashboard.h"
#include "palette/palette.h"
#include "palette/panel.h"
#include "palette/panel_set.h"
#include "workbench/host/workbench.h"
#include "workbench/windows/menu_table.h"

#include <hostapi/xmldom.h>
#include <hostapi/zorq/menu_data.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The panels of the tests: "Draw" (with controls and flyouts), "Layers" and "Spare" of the group
/// MAIN, "Draw" of the group OTHER. The workspace "Work" shows Layers, then MAIN's Draw; "House"
/// shows OTHER's Draw.
extern const char* const kTestMenu;

/// The dashboard, linked into the test, in a workbench with one document.
class PaletteTest : public testing::Test {
protected:
    explicit PaletteTest(const std::string& menu = kTestMenu);
    ~PaletteTest() override;
    /// Unloads, and fails on anything that the dashboard left behind.
    void TearDown() override;

    /// Sends the load message.
    void load();
    /// Loads, and shows the dashboard with its panels.
    void show();
    /// Shows the dashboard that was loaded before.
    void showLoaded();

    CVxDaDashboard& dashboard();
    CVxDaPanelSet& panelSet();
    /// A panel that has been made; null for none.
    CVxDaPanel* panel(const VxString& menuGroup, const VxString& id);
    /// The panels on show, in the order of the records, as "GROUP/ID".
    std::vector<std::string> shown();
    /// The n-th item of an ID; null for none.
    CQrUiToolPanelItem* item(std::wstring_view id, std::size_t n = 0);
    /// The menu data of an item of a tool panel.
    VxToolPanelItemData& itemData(const VxString& menuGroup, const VxString& toolPanel,
                                  std::size_t n);

    /// What a context menu would show.
    std::vector<workbench::MenuLine> menuOf(CVxDaPanel& panel);
    std::vector<workbench::MenuLine> menuOfDashboard();

    /// Runs posted messages until none is left.
    void settle();
    /// Forgets what the journal has.
    void forget();
    /// The host calls since the journal was forgotten, which forgets them: all, or those of names.
    std::vector<std::string> takeLines();
    std::vector<std::string> takeLines(const std::vector<std::string_view>& names);
    /// How often a host call was made since the journal was forgotten.
    int callCount(std::string_view name);
    /// The last host call of a name as a JSON line; empty for none.
    std::string lastCall(std::string_view name);
    /// The command texts sent since the journal was forgotten.
    std::vector<std::string> sent();
    void fail(std::string_view call, int count = 1);
    /// Has the second call from now on fail, with a status or the usual way.
    void failSecond(std::string_view call, std::optional<int> status = {});
    /// Writes a file into the test's own folder.
    std::filesystem::path writeFile(const std::string& name, const std::string& bytes) {
        return m_folder.write(name, bytes);
    }

    workbench::Workbench& bench() { return *m_workbench; }

private:
    class Folder {
    public:
        Folder();
        Folder(const Folder&) = delete;
        Folder& operator=(const Folder&) = delete;
        ~Folder();
        std::filesystem::path write(const std::string& name, const std::string& text) const;

    private:
        std::filesystem::path m_path;
    };

    Folder m_folder;
    std::unique_ptr<workbench::Workbench> m_workbench;
    bool m_loaded = false;
    workbench::Journal::Listening m_failing;  // of `failSecond`
};

/// The texts of lines; "-" for a separator, "*" before a checked one.
std::vector<std::string> labels(const std::vector<workbench::MenuLine>& lines);
/// The lines of the popup with a label; none if there is no such popup.
std::vector<workbench::MenuLine> popup(const std::vector<workbench::MenuLine>& lines,
                                       std::wstring_view label);

/// A window that keeps the messages it gets, and answers them.
class ProbeWindow final : public CWnd {
public:
    struct Message {
        UINT number;
        WPARAM wParam;
        LPARAM lParam;
        friend bool operator==(const Message&, const Message&) = default;
    };

    /// Creates the window as a child.
    explicit ProbeWindow(CWnd& parent);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::vector<Message> got;  ///< those of the dashboard and the toolkit, by their numbers
    LRESULT answer = 0;        ///< to those
};

/// A counted object that is no node.
class Stranger final : public IUnknown {
public:
    HRESULT QueryInterface(const GUID& interfaceId, void** object) override;
    UINT AddRef() override { return 2; }
    UINT Release() override { return 1; }
};
