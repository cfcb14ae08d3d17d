#include "workbench/desktop/mirror/step_painter.h"

#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/look/pictures.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/windows/window_system.h"

#include <QLinearGradient>
#include <QPainter>

namespace workbench::desktop {

namespace {

struct StepPainter {
    QPainter& painter;
    const Stage& stage;

    void operator()(const FillStep& step) const {
        painter.fillRect(toQt(step.rect), toQt(step.colour));
    }
    void operator()(const GradientStep& step) const {
        QLinearGradient colours(step.rect.left, 0, step.rect.right, 0);
        colours.setColorAt(0, toQt(step.left));
        colours.setColorAt(1, toQt(step.right));
        painter.fillRect(toQt(step.rect), colours);
    }
    void operator()(const PictureStep& step) const {
        painter.drawPixmap(toQt(step.rect), pixmapOf(step.picture));
    }
    void operator()(const TextStep& step) const {
        int alignment = Qt::AlignLeft;
        alignment |= (step.format & DT_VCENTER) != 0 ? Qt::AlignVCenter : Qt::AlignTop;
        if ((step.format & DT_SINGLELINE) != 0)
            alignment |= Qt::TextSingleLine;
        painter.setFont(fontOf(stage.windows.gdi().findFont(step.font)));
        painter.setPen(toQt(step.colour));
        painter.drawText(toQt(step.rect), alignment, toQt(step.text));
    }
};

}  // namespace

void paintSteps(QPainter& painter, const Stage& stage, const std::vector<DrawingStep>& steps) {
    for (const DrawingStep& step : steps)
        std::visit(StepPainter{painter, stage}, step);
}

}  // namespace workbench::desktop
