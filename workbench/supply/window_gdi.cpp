#include "workbench/base/input_error.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/system_colours.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/picture_pixels.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using workbench::HostCall;
using workbench::Workbench;

workbench::GdiTable& gdi() {
    return Workbench::current().windows().gdi();
}

workbench::PictureTable& pictures() {
    return Workbench::current().toolkit().pictures();
}

}  // namespace

CFont::~CFont() {
    if (m_handle == 0 || Workbench::living() == nullptr)
        return;
    const LOGFONT* const font = gdi().findFont(m_handle);
    const HostCall call("CFont::~CFont", {font == nullptr ? VxString() : font->faceName});
    gdi().removeFont(m_handle);
}

BOOL CFont::CreateFontIndirect(const LOGFONT& font) {
    HostCall call("CFont::CreateFontIndirect", {font.faceName, font.height, font.weight});
    gdi().removeFont(m_handle);
    m_handle = 0;
    if (call.failed())
        return call.returns(0);
    m_handle = gdi().addFont(font, this);
    return call.returns(1);
}

CBitmap::~CBitmap() {
    if (m_hBitmap != nullptr && Workbench::living() != nullptr)
        pictures().release(m_hBitmap);
}

BOOL CBitmap::LoadBitmap(UINT number) {
    HostCall call("CBitmap::LoadBitmap", {number});
    if (call.failed() || m_hBitmap != nullptr)
        return call.returns(0);
    const auto bytes = Workbench::current().modules().resources().bitmap(number);
    if (!bytes)
        return call.returns(0);
    m_hBitmap = pictures().add("#" + std::to_string(number),
                               std::vector<std::uint8_t>(bytes->data, bytes->data + bytes->length));
    return call.returns(1);
}

COLORREF CBitmap::GetPixel(int x, int y) const {
    try {
        return workbench::colourAt(pictures().pixels(m_hBitmap), x, y);
    } catch (const workbench::InputError&) {
        return CLR_INVALID;
    }
}

COLORREF GetSysColor(int index) {
    return workbench::systemColour(Workbench::current().toolkit().shade(), index);
}

CDC* CDC::FromHandle(HDC context) {
    return gdi().findContext(context);
}

BOOL DestroyIcon(HICON icon) {
    HostCall call("DestroyIcon");
    if (call.failed())
        return call.returns(0);
    return call.returns(gdi().removeIcon(icon) ? 1 : 0);
}
