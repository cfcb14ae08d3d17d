#include "workbench/base/input_error.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/resources/png_picture.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxut.h>
#include <hostapi/window/module.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

using workbench::HostCall;
using workbench::ModuleLoader;
using workbench::Workbench;

namespace {

ModuleLoader& loader() {
    return Workbench::current().modules();
}

/// A library as the journal shows it: by its file.
std::string_view shown(HINSTANCE library) {
    return loader().libraries().fileName(library);
}

/// The picture of an icon at the size that icons are drawn for, or else the small one; nothing if
/// the library has none, or one that is no picture.
std::optional<workbench::PngPicture> iconPicture(HINSTANCE library, UINT number) {
    constexpr std::uint32_t kIconSizes[] = {32, 16};  // pixels
    const std::string key = "#" + std::to_string(number);
    const workbench::ResourceLibrary resources = loader().libraries().resources(library);
    for (const std::uint32_t size : kIconSizes) {
        const auto bytes = resources.findPicture(key, size);
        if (!bytes)
            continue;
        try {
            return workbench::decodePng(bytes->data, bytes->length, key);
        } catch (const workbench::InputError&) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

/// Whether a fault was asked for one resource only, as "LoadString:1203".
bool takesFaultOf(const char* call, UINT number) {
    workbench::Faults& faults = Workbench::current().faults();
    return faults.isAnyPending() && faults.take(std::string(call) + ":" + std::to_string(number));
}

}  // namespace

HINSTANCE LoadLibrary(const wchar_t* fileName) {
    HostCall call("LoadLibrary", {fileName});
    if (call.failed() || fileName == nullptr) {
        const int usual = static_cast<int>(workbench::kErrorFileNotFound);
        loader().libraries().setError(static_cast<DWORD>(call.status(usual)));
        return call.returns<HINSTANCE>(nullptr);
    }
    return call.returns(loader().libraries().load(fileName));
}

BOOL FreeLibrary(HINSTANCE library) {
    HostCall call("FreeLibrary", {shown(library)});
    if (call.failed())
        return call.returns<BOOL>(0);
    return call.returns<BOOL>(loader().libraries().free(library) ? 1 : 0);
}

HINSTANCE GetModuleHandle(const wchar_t* fileName) {
    HostCall call("GetModuleHandle", {fileName});
    if (call.failed() || fileName == nullptr)
        return call.returns<HINSTANCE>(nullptr);
    return call.returns(loader().libraries().find(fileName));
}

void* GetProcAddress(HINSTANCE library, const char* name) {
    HostCall call("GetProcAddress", {shown(library), name});
    if (call.failed() || name == nullptr)
        return call.returns<void*>(nullptr);
    return call.returns(loader().libraries().symbol(library, name));
}

DWORD GetLastError() {
    HostCall call("GetLastError");
    return call.returns(loader().libraries().error());
}

void SetLastError(DWORD error) {
    const HostCall call("SetLastError", {error});
    if (!call.failed())
        loader().libraries().setError(error);
}

HINSTANCE AfxGetResourceHandle() {
    HostCall call("AfxGetResourceHandle");
    return call.returns(loader().resources().current());
}

void AfxSetResourceHandle(HINSTANCE library) {
    const HostCall call("AfxSetResourceHandle", {shown(library)});
    if (!call.failed())
        loader().resources().setCurrent(library);
}

BOOL LoadString(UINT number, VxString& text) {
    HostCall call("LoadString", {number});
    if (call.failed() || takesFaultOf("LoadString", number))
        return call.returns<BOOL>(0);
    std::optional<std::wstring> found = loader().resources().string(number);
    if (!found)
        return call.returns<BOOL>(0);
    text = std::move(*found);
    return call.returns<BOOL>(1);
}

HICON LoadIcon(HINSTANCE library, UINT number) {
    HostCall call("LoadIcon", {shown(library), number});
    if (call.failed())
        return call.returns<HICON>(nullptr);
    std::optional<workbench::PngPicture> picture = iconPicture(library, number);
    if (!picture)
        return call.returns<HICON>(nullptr);
    std::string source = "#" + std::to_string(number);
    return call.returns(
        Workbench::current().windows().gdi().addIcon({std::move(*picture), std::move(source)}));
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& record, HINSTANCE library) {
    HostCall call("AfxInitExtensionModule", {shown(library)});
    if (call.failed())
        return call.returns<BOOL>(0);
    return call.returns<BOOL>(loader().resources().attach(record, library) ? 1 : 0);
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& record) {
    const HostCall call("AfxTermExtensionModule", {shown(record.library)});
    if (!call.failed())
        loader().resources().detach(record);
}

VxString VxUt::GetSystemErrorMessage(DWORD error) {
    HostCall call("VxUt::GetSystemErrorMessage", {error});
    return call.returns(workbench::systemErrorText(error));
}
