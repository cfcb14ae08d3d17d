#include "workbench/desktop/app/dock_splitter.h"

#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QMouseEvent>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kLeastDrawing = 200;  // pixels that the drawing keeps

}  // namespace

DockSplitter::DockSplitter(Stage& stage, QWidget& home) : QWidget(&home), m_stage(stage) {
    setCursor(Qt::SizeHorCursor);
    setAccessibleName(QStringLiteral("Edge of the dashboard"));
    hide();
}

CQrUiPaletteSet* DockSplitter::dockedSet() const {
    for (CQrUiPaletteSet* set : m_stage.toolkit.frame().bars()) {
        const BarPlace& place = m_stage.toolkit.paletteSets().of(set).place;
        if (!place.floating && !place.anchored && m_stage.windows.isOnScreen(set->m_hWnd))
            return set;
    }
    return nullptr;
}

void DockSplitter::follow() {
    const CQrUiPaletteSet* const set = dockedSet();
    setVisible(set != nullptr);
    if (set == nullptr)
        return;
    const CRect bar = m_stage.windows.screenRect(set->m_hWnd);
    const bool isRight = m_stage.toolkit.paletteSets().of(set).place.edge == Edge::Right;
    setGeometry(isRight ? bar.left - kWidth : bar.right, 0, kWidth, parentWidget()->height());
    raise();
}

void DockSplitter::mousePressEvent(QMouseEvent* event) {
    m_grip = event->position().toPoint().x();
}

void DockSplitter::mouseMoveEvent(QMouseEvent* event) {
    CQrUiPaletteSet* const set = dockedSet();
    if (set == nullptr || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const int left = mapToParent(event->position().toPoint()).x() - m_grip;
    BarPlace place = m_stage.toolkit.paletteSets().of(set).place;
    const int room = parentWidget()->width();
    const int wanted = place.edge == Edge::Right ? room - left - kWidth : left;
    place.rect.right = place.rect.left + std::clamp(wanted, 1, std::max(1, room - kLeastDrawing));
    m_stage.pump.act([this, set, &place] { m_stage.toolkit.frame().put(*set, place); });
}

}  // namespace workbench::desktop
