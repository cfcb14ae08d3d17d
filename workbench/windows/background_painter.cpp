#include "workbench/windows/background_painter.h"

#include "workbench/windows/drawing_context.h"
#include "workbench/windows/window_system.h"

namespace workbench {

std::optional<COLORREF> paintBackground(WindowSystem& windows, HWND window) {
    const CRect client = windows.clientRect(window);
    DrawingContext context(client, windows.gdi());
    const HDC handle = windows.gdi().addContext(context);
    windows.send(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(handle), 0);
    windows.gdi().removeContext(handle);
    std::optional<COLORREF> colour;
    for (const DrawingStep& step : context.steps()) {
        const auto* const filled = std::get_if<FillStep>(&step);
        if (filled != nullptr && filled->rect == client)
            colour = filled->colour;
    }
    return colour;
}

}  // namespace workbench
