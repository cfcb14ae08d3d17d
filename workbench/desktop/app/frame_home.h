#pragma once

#include "workbench/desktop/mirror/stage.h"

#include <QWidget>

namespace workbench::desktop {

/// Where the host's main frame stands in the window: the frame is always as large as this.
class FrameHome final : public QWidget {
public:
    explicit FrameHome(QWidget* parent) : QWidget(parent) {}

    /// From now on the frame follows this widget's size.
    void attach(Stage& stage);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void sizeFrame();

    Stage* m_stage = nullptr;  // not owned; null: not attached
};

}  // namespace workbench::desktop
