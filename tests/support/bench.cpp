#include "tests/support/bench.h"

#include "tests/support/call_lines.h"
#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

namespace support {

namespace {

constexpr const wchar_t* kModule = L"VxDashboard.qlx";

}  // namespace

Bench::Bench() = default;

Bench::~Bench() = default;

void Bench::TearDown() {
    if (m_bench == nullptr)
        return;
    settle();
    for (const Sent& text : m_sent)
        ADD_FAILURE() << "untaken command text: " << text.text;
    for (const std::string& call : m_bench->faults().untaken())
        ADD_FAILURE() << "fault that no call came to: " << call;
    for (const char* kind : {"balloon", "box"}) {
        for (const std::string& text : takeTexts(kind)) {
            ADD_FAILURE() << "untaken " << kind << ": " << text;
        }
    }
    m_bench.reset();
}

void Bench::useMenu(const std::string& menuText) {
    m_folder = std::make_unique<TemporaryFolder>();
    m_folder->write("menu.json", menuText);
    m_menuChosen = true;
}

void Bench::useNoMenu() {
    m_noMenu = true;
    m_menuChosen = true;
}

workbench::Workbench& Bench::bench() {
    if (m_bench == nullptr)
        start();
    return *m_bench;
}

void Bench::start() {
    workbench::WorkbenchOptions options;
    options.libraryDir = WORKBENCH_BIN_DIR;
    if (m_folder != nullptr) {
        options.panelFile = m_folder->path / "menu.json";
    } else if (!m_noMenu) {
        options.panelFile = std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "panels.json";
    }
    m_bench = std::make_unique<workbench::Workbench>(options);
    m_bench->modules().environment().set("ENABLEDASHBOARD", std::nullopt);
    m_listening = m_bench->journal().addListener([this](const workbench::JournalRecord& record) {
        if (record.kind != "command" || record.field("way").isNil())
            return;
        m_sent.push_back({record.field("text").asString(), record.field("way").asString()});
    });
}

void Bench::env(const std::string& name, const std::optional<std::string>& value) {
    bench().modules().environment().set(name, value);
}

bool Bench::load() {
    const bool loaded = bench().modules().loadModule(kModule);
    settle();
    return loaded;
}

bool Bench::unload() {
    const bool unloaded = bench().modules().unloadModule(kModule);
    settle();
    return unloaded;
}

void* Bench::exportedSymbol(const char* name) {
    workbench::LibraryTable& libraries = bench().modules().libraries();
    return libraries.symbol(libraries.find(kModule), name);
}

int Bench::notify(int code) {
    int answer = 0;
    {
        const workbench::Turn turn;
        answer = exported<VxDaNotifyDashboardFn>("VxDaNotifyDashboard")(code);
    }
    settle();
    return answer;
}

void Bench::newDocument(const std::wstring& name) {
    bench().editor().documents().create(name);
    settle();
}

void Bench::closeDocument(const std::wstring& name) {
    workbench::DocumentList& documents = bench().editor().documents();
    documents.close(*documents.find(name));
    settle();
}

void Bench::activateDocument(const std::wstring& name) {
    workbench::DocumentList& documents = bench().editor().documents();
    documents.activate(*documents.find(name));
    settle();
}

void Bench::openDrawing(const std::string& file) {
    bench().editor().documents().open(std::filesystem::path(PROJECT_SOURCE_ROOT) / file);
    settle();
}

void Bench::type(const std::wstring& text) {
    bench().editor().type(text);
    runHost();
}

void Bench::begin(const std::wstring& command) {
    bench().editor().beginCommand(command);
    runHost();
}

void Bench::finish(const std::string& outcome) {
    const workbench::CommandState state = outcome == "ended" ? workbench::CommandState::Ended
                                          : outcome == "cancelled"
                                              ? workbench::CommandState::Cancelled
                                              : workbench::CommandState::Failed;
    EXPECT_TRUE(bench().editor().finishCommand(state));
    runHost();
}

workbench::Value Bench::var(const std::wstring& name) {
    return bench().editor().read(name);
}

void Bench::set(const std::wstring& name, const workbench::Value& value) {
    EXPECT_TRUE(bench().editor().set(name, value));
    settle();
}

void Bench::wait(std::int64_t milliseconds) {
    bench().windows().advance(milliseconds);
    runHost();
}

void Bench::idle() {
    bench().toolkit().idleUpdate();
    runHost();
}

void Bench::settle() {
    do {
        bench().windows().queue().runPosted();
        const workbench::Document* document = bench().editor().documents().current();
        const bool isRunning = document != nullptr && document->processor().isActive();
        if (!isRunning)
            bench().editor().pump();
    } while (bench().windows().queue().hasPosted());
}

void Bench::runHost() {
    do {
        bench().windows().queue().runPosted();
        bench().editor().pump();
    } while (bench().windows().queue().hasPosted());
}

void Bench::showDashboard() {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load()) << bench().modules().failureText();
    newDocument(L"A");
    type(L"DASHBOARDOLD\n");
    ASSERT_NE(paletteSet(), nullptr);
}

void Bench::fail(const std::string& call, std::optional<int> status, std::optional<int> count) {
    bench().faults().fail(call, status, count);
}

CQrUiPaletteSet* Bench::paletteSet() {
    const auto& bars = bench().toolkit().frame().bars();
    return bars.empty() ? nullptr : bars.front();
}

CQrUiToolPanelItem* Bench::item(const std::wstring& id, std::size_t number) {
    const auto items = workbench::findItems(bench().windows(), id);
    return number <= items.size() ? items[number - 1] : nullptr;
}

CQrUiPanel* Bench::panel(const std::wstring& id, std::size_t number) {
    const auto panels = workbench::findPanels(bench().windows(), id);
    return number <= panels.size() ? panels[number - 1] : nullptr;
}

HWND Bench::control(const std::string& name, int number) {
    return bench().windows().findByName(name, number - 1);
}

HWND Bench::part(HWND control, const std::string& part) {
    return workbench::findPart(bench().windows(), control, part);
}

std::vector<std::wstring> Bench::panelsOnScreen() {
    std::vector<std::wstring> ids;
    for (const CQrUiPanel* panel : workbench::allPanels(bench().windows())) {
        if (bench().windows().isOnScreen(panel->m_hWnd))
            ids.push_back(panel->GetID());
    }
    return ids;
}

void Bench::click(CQrUiToolPanelItem* item) {
    ASSERT_NE(item, nullptr);
    workbench::gestures::clickItem(bench().toolkit(), *item);
    settle();
}

std::vector<Sent> Bench::takeSent() {
    return std::exchange(m_sent, {});
}

std::vector<workbench::JournalRecord> Bench::takeJournal(const std::string& kind) {
    return bench().journal().take(kind);
}

std::vector<std::string> Bench::takeCalls() {
    std::vector<std::string> names;
    for (const workbench::JournalRecord& record : takeJournal("call")) {
        names.push_back(record.field("name").asString());
    }
    return names;
}

std::vector<std::string> Bench::takeCallLines(const std::vector<std::string_view>& names) {
    return callLines(takeJournal("call"), names);
}

std::vector<std::int64_t> Bench::takeMessagesOf(const std::string& control) {
    std::vector<std::int64_t> numbers;
    for (const workbench::JournalRecord& record : takeJournal("message")) {
        if (record.field("control") == workbench::Value(control)) {
            numbers.push_back(record.field("number").asInteger());
        }
    }
    return numbers;
}

std::vector<std::string> Bench::takeTexts(const std::string& kind) {
    std::vector<std::string> found;
    for (const workbench::JournalRecord& record : takeJournal(kind)) {
        if (record.field("text").isString())
            found.push_back(record.field("text").asString());
    }
    return found;
}

}  // namespace support
