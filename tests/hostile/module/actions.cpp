#include "tests/hostile/module/actions.h"

#include "tests/hostile/module/hostile_control.h"
#include "tests/hostile/module/hostile_listener.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/lookup.h"

#include <hostapi/qrui18.h>
#include <hostapi/vxdb18/dynamic_linker.h>
#include <hostapi/zorq.h>

#include <cstddef>
#include <iterator>
#include <stdexcept>

namespace hostile {

namespace {

constexpr const wchar_t* kDashboard = L"VxDashboard.qlx";

/// Written by some controls of the dashboard, and heard by most.
constexpr const wchar_t* kDashboardVariables[] = {L"CLAYER", L"LAYLOCKFADECTL", L"STEPSIZE"};

const wchar_t* s_written = nullptr;  // null: none is being written

template <class Function>
Function exported(const char* name) {
    const HINSTANCE module = GetModuleHandle(kDashboard);
    return module == nullptr ? nullptr : reinterpret_cast<Function>(GetProcAddress(module, name));
}

void notify(int code) {
    if (const auto function = exported<VxDaNotifyDashboardFn>("VxDaNotifyDashboard"))
        function(code);
}

void releaseControls() {
    notify(kDashboardReleaseControls);
}

void unloadPanels() {
    notify(kDashboardUnload);
}

void reload() {
    notify(kDashboardReload);
}

void unloadAndReload() {
    notify(kDashboardUnload);
    notify(kDashboardReload);
}

void show() {
    wchar_t text[] = L"DASHBOARDOLD\n";
    do_cmd(text, 0, 0, 1);
}

void unloadModule() {
    workbench::Workbench::current().modules().unloadModule(kDashboard);
}

void endModule() {
    if (const auto function = exported<VxRxEntryPointFn>("vxrxEntryPoint"))
        function(static_cast<int>(VxRxMessage::kUnloadApp), nullptr);
}

void closeDocument() {
    workbench::DocumentList& documents = workbench::Workbench::current().editor().documents();
    if (workbench::Document* const document = documents.current())
        documents.close(*document);
}

/// Another value of the same type.
bool change(VxResultBuffer& value) {
    switch (value.type) {
    case kRtReal:
        value.value.real += 1.0;
        return true;
    case kRtShort:
        value.value.shortInt = static_cast<std::int16_t>(value.value.shortInt == 1 ? 0 : 1);
        return true;
    case kRtLong:
        value.value.longInt = value.value.longInt == 1 ? 0 : 1;
        return true;
    default:
        return false;
    }
}

/// Locks the current document for writing, as a module must that writes outside of a command. Not by
/// the host's calls, which are attacked themselves.
class WriteLock {
public:
    WriteLock() : m_document(documents().current()) {
        if (m_document != nullptr)
            m_document->locks().lock(workbench::DocumentLocks::kWrite, this);
    }
    ~WriteLock() {
        // The document may have been closed by whoever heard of the write.
        if (documents().find(m_document) != nullptr)
            m_document->locks().unlock(this);
    }
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

private:
    static workbench::DocumentList& documents() {
        return workbench::Workbench::current().editor().documents();
    }

    workbench::Document* m_document;  // not owned; null: none was open
};

void write(const wchar_t* name) {
    const WriteLock lock;
    VxResultBuffer* const value = vxutNewRb(0);
    if (vxedGetVar(name, value) == kRtNorm) {
        change(*value);
        vxedSetVar(name, value);
    }
    vxutRelRb(value);
}

void writeVariable() {
    if (s_written != nullptr) {
        write(s_written);
        return;
    }
    for (const wchar_t* name : kDashboardVariables)
        write(name);
}

void disableParent() {
    if (CWnd* const parent = HostileControl::anyParent())
        parent->EnableWindow(0);
}

template <class Type>
Type* aboveControl() {
    CWnd* window = HostileControl::anyParent();
    while (window != nullptr && dynamic_cast<Type*>(window) == nullptr)
        window = window->GetParent();
    return dynamic_cast<Type*>(window);
}

void destroyPanel() {
    if (auto* const panel = aboveControl<CQrUiPanel>())
        panel->DestroyWindow();
}

void destroyPanelSet() {
    if (auto* const set = aboveControl<CQrUiPanelSet>())
        set->DestroyWindow();
}

void removeListener() {
    addOrRemoveListener(HostileListener::first(), false);
}

void addListener() {
    addOrRemoveListener(HostileListener::second(), true);
}

void setVisiblePanels() {
    const VxDaPanelList panels{{L"Layers", L"ZORQ"}, {L"Hostile", L"ZORQ"}};
    vxedSetPanelRefreshFromWS(true);
    if (const auto function = exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels"))
        function(&panels);
}

[[noreturn]] void throwException() {
    throw std::runtime_error("the hostile module throws");
}

/// In the order of `Action`.
constexpr void (*kActions[])() = {
    releaseControls, unloadPanels,    reload,         unloadAndReload, show,
    unloadModule,    endModule,       closeDocument,  writeVariable,   disableParent,
    destroyPanel,    destroyPanelSet, removeListener, addListener,     setVisiblePanels,
    throwException,
};
static_assert(std::size(kActions) == static_cast<std::size_t>(Action::kCount));

}  // namespace

void perform(Action action) {
    kActions[static_cast<std::size_t>(action)]();
}

WrittenVariable::WrittenVariable(const wchar_t* name) : m_before(s_written) {
    s_written = name;
}

WrittenVariable::~WrittenVariable() {
    s_written = m_before;
}

void addOrRemoveListener(VxDaDashboardReactor& listener, bool add) {
    if (const auto function = exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor"))
        function(&listener, add ? 1 : 0);
}

}  // namespace hostile
