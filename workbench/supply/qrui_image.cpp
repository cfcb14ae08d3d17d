#include "workbench/base/input_error.h"
#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/image.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

using workbench::HostCall;
using workbench::Workbench;

namespace {

/// The bytes of a file that is a picture; empty for any other.
std::vector<std::uint8_t> readPicture(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(stream), {}};
    try {
        workbench::decodePng(bytes.data(), bytes.size(), file.string());
    } catch (const workbench::InputError&) {
        bytes.clear();
    }
    return bytes;
}

/// The bytes of a library's picture in one size, in pixels; empty if it has none.
std::vector<std::uint8_t> pictureOf(const workbench::ResourceLibrary& resources,
                                    const std::string& key, int size) {
    const auto bytes = resources.findPicture(key, static_cast<std::uint32_t>(size));
    return bytes ? std::vector<std::uint8_t>(bytes->data, bytes->data + bytes->length)
                 : std::vector<std::uint8_t>();
}

}  // namespace

HBITMAP QrUiLoadImageFromResource(HINSTANCE library, const wchar_t* key, int size, int flags) {
    HostCall call("QrUiLoadImageFromResource",
                  {Workbench::current().modules().libraries().fileName(library), key, size, flags});
    HBITMAP picture = nullptr;
    if (!call.failed() && library != nullptr && key != nullptr && size > 0) {
        const std::string name = workbench::toUtf8(key);
        const auto& resources = Workbench::current().modules().libraries().resources(library);
        std::vector<std::uint8_t> bytes = pictureOf(resources, name, size);
        if (!bytes.empty())
            picture = Workbench::current().toolkit().pictures().add(
                name, std::move(bytes), pictureOf(resources, name, 2 * size));
    }
    call.returns(static_cast<const void*>(picture));
    return picture;
}

HBITMAP LoadBitmapFileGdiPlus(const wchar_t* fileName) {
    HostCall call("LoadBitmapFileGdiPlus", {fileName});
    HBITMAP picture = nullptr;
    if (!call.failed() && fileName != nullptr) {
        const std::string name = workbench::toUtf8(fileName);
        std::vector<std::uint8_t> bytes = readPicture(name);
        if (!bytes.empty())
            picture = Workbench::current().toolkit().pictures().add(name, std::move(bytes));
    }
    call.returns(static_cast<const void*>(picture));
    return picture;
}

HBITMAP BitmapFromIconGdiPlus(HICON icon) {
    HostCall call("BitmapFromIconGdiPlus", {icon});
    const workbench::SourcedPicture* const known =
        Workbench::current().windows().gdi().findIcon(icon);
    if (call.failed() || known == nullptr)
        return call.returns<HBITMAP>(nullptr);
    return call.returns(
        Workbench::current().toolkit().pictures().addDecoded(known->source, known->picture));
}
