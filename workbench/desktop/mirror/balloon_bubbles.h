#pragma once

#include <hostapi/types.h>

#include <QHash>
#include <QPointer>

class QLabel;

namespace workbench::desktop {

class MirrorWidget;
struct Stage;

/// The balloons on show, one an owner, below the parts that they point at.
class BalloonBubbles {
public:
    explicit BalloonBubbles(Stage& stage) : m_stage(stage) {}
    BalloonBubbles(const BalloonBubbles&) = delete;
    BalloonBubbles& operator=(const BalloonBubbles&) = delete;
    ~BalloonBubbles();

    /// A window has changed: shows, renews or ends the balloon that it owns. `target` is the widget
    /// that the balloon points at, null for none.
    void update(HWND owner, MirrorWidget* target);
    /// Takes the colours anew.
    void restyle();

private:
    void dress(QLabel& bubble) const;

    Stage& m_stage;
    QHash<HWND, QPointer<QLabel>> m_bubbles;  // by owner; they belong to the windows they stand in
};

}  // namespace workbench::desktop
