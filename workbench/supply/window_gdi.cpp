#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

namespace {

using workbench::HostCall;
using workbench::Workbench;

workbench::GdiTable& gdi() {
    return Workbench::current().windows().gdi();
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
    m_handle = gdi().addFont(font);
    return call.returns(1);
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
