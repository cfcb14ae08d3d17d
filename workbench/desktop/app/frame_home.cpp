#include "workbench/desktop/app/frame_home.h"

#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::desktop {

void FrameHome::attach(Stage& stage) {
    m_stage = &stage;
    sizeFrame();
}

void FrameHome::resizeEvent(QResizeEvent* /*event*/) {
    if (m_stage != nullptr)
        sizeFrame();
}

void FrameHome::sizeFrame() {
    m_stage->pump.act([this] {
        MainFrame& frame = m_stage->toolkit.frame();
        m_stage->windows.place(frame.frame().m_hWnd, {0, 0, width(), height()},
                               SWP_NOZORDER | SWP_NOACTIVATE);
        frame.layout();
    });
}

}  // namespace workbench::desktop
