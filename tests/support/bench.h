#pragma once

#include "tests/support/temporary_folder.h"
#include "workbench/host/workbench.h"

#include <hostapi/qrui18.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/window.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// A command text that the module sent.
struct Sent {
    std::string text;
    std::string way;  // "menu", "line", "cancel", "do_cmd"
    friend bool operator==(const Sent&, const Sent&) = default;
};

/// Test fixture: a workbench of its own with the example menu, and a user's verbs. At the end a
/// test fails that has left a command text, a balloon or a box untaken, or whose fault never came.
class Bench : public testing::Test {
protected:
    Bench();
    ~Bench() override;
    void TearDown() override;

    // Before the workbench is used first.

    /// Another menu than the example's, as a menu file's text.
    void useMenu(const std::string& menuText);
    /// No menu at all.
    void useNoMenu();
    /// The example menu, which is what a bench has that isn't told otherwise.
    void useExampleMenu() { m_menuChosen = true; }
    /// Whether one of these was called, or the bench has started.
    bool hasMenu() const { return m_menuChosen || m_bench != nullptr; }

    // The module.

    workbench::Workbench& bench();
    void env(const std::string& name, const std::optional<std::string>& value);
    /// Sends the load message; true if the module is loaded afterwards.
    bool load();
    bool unload();
    /// An exported function of the loaded module; null for none.
    template <class Function>
    Function exported(const char* name) {
        return reinterpret_cast<Function>(exportedSymbol(name));
    }
    /// `VxDaNotifyDashboard`.
    int notify(int code);

    // The session.

    void newDocument(const std::wstring& name);
    void closeDocument(const std::wstring& name);
    void activateDocument(const std::wstring& name);
    void openDrawing(const std::string& file);
    void type(const std::wstring& text);
    /// Starts a command that waits for input.
    void begin(const std::wstring& command);
    /// Ends it, "ended", "cancelled" or "failed".
    void finish(const std::string& outcome = "ended");
    workbench::Value var(const std::wstring& name);
    void set(const std::wstring& name, const workbench::Value& value);
    void wait(std::int64_t milliseconds);
    void idle();
    /// Lets run what a gesture has set going: posted messages, and command text unless a command
    /// is running. What is queued behind a running command waits for `runHost`.
    void settle();
    /// The host's next turn: posted messages and all command text. Part of `wait`, `idle`, `type`.
    void runHost();
    /// Commands enabled, module loaded, a document "A", the dashboard shown.
    void showDashboard();
    void fail(const std::string& call, std::optional<int> status = {},
              std::optional<int> count = {});

    // The dashboard.

    /// The palette set; null for none.
    CQrUiPaletteSet* paletteSet();
    /// The n-th item, panel or control of a name; null for none.
    CQrUiToolPanelItem* item(const std::wstring& id, std::size_t number = 1);
    CQrUiPanel* panel(const std::wstring& id, std::size_t number = 1);
    HWND control(const std::string& name, int number = 1);
    HWND part(HWND control, const std::string& part);
    /// The panels on screen, by ID, in the order of the window tree.
    std::vector<std::wstring> panelsOnScreen();
    void click(CQrUiToolPanelItem* item);

    // What happened.

    /// The command texts since the last call.
    std::vector<Sent> takeSent();
    /// The journal's records of a kind since the last call, or of all kinds.
    std::vector<workbench::JournalRecord> takeJournal(const std::string& kind = {});
    /// The names of the host calls since the last call, in order.
    std::vector<std::string> takeCalls();
    /// The host calls of some names since the last call, with their arguments, as `callLines` has
    /// them; all others are forgotten too.
    std::vector<std::string> takeCallLines(const std::vector<std::string_view>& names);
    /// The numbers of the messages that a control got since the last call.
    std::vector<std::int64_t> takeMessagesOf(const std::string& control);
    /// The texts of the balloons (or boxes) since the last call.
    std::vector<std::string> takeTexts(const std::string& kind);

private:
    void start();
    void* exportedSymbol(const char* name);

    std::unique_ptr<TemporaryFolder> m_folder;  // with the menu; null: the example menu
    bool m_noMenu = false;
    bool m_menuChosen = false;
    std::unique_ptr<workbench::Workbench> m_bench;  // null until it is used first
    std::vector<Sent> m_sent;
    workbench::Journal::Listening m_listening;
};

}  // namespace support
