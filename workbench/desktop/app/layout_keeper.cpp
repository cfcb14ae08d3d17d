#include "workbench/desktop/app/layout_keeper.h"

#include "workbench/desktop/app/collapsed_panels.h"
#include "workbench/toolkit/toolkit.h"

#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kLookMs = 1000;

}  // namespace

LayoutKeeper::LayoutKeeper(Toolkit& toolkit, std::function<void()> save)
    : m_toolkit(toolkit),
      m_save(std::move(save)) {
    m_timer.setInterval(kLookMs);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
}

void LayoutKeeper::start() {
    m_kept = present();
    m_seen = m_kept;
    m_timer.start();
}

void LayoutKeeper::look() {
    Layout now = present();
    const bool isAtRest = now == m_seen;
    m_seen = std::move(now);
    // Without bars the dashboard isn't loaded: that is no layout of its user's.
    if (!isAtRest || m_seen == m_kept || m_seen.bars.empty())
        return;
    m_kept = m_seen;
    m_save();
}

LayoutKeeper::Layout LayoutKeeper::present() const {
    Layout layout;
    MainFrame& frame = m_toolkit.frame();
    for (const CQrUiPaletteSet* bar : frame.bars())
        layout.bars.push_back(frame.placeOf(*bar));
    layout.rolledUp = collapsedPanels(m_toolkit);
    return layout;
}

}  // namespace workbench::desktop
