#pragma once

#include <hostapi/types.h>

#include <QObject>
#include <QPointer>

class QLabel;

namespace workbench::desktop {

class MirrorWidget;
struct Stage;

/// The balloon on show, below the part that it points at. A click on it only ends it; one elsewhere,
/// or a key, ends it and does what it does.
class BalloonBubbles final : public QObject {
public:
    explicit BalloonBubbles(Stage& stage);
    ~BalloonBubbles() override;

    /// A window has changed: shows, renews or ends the balloon that it owns. `target` is the widget
    /// that the balloon points at, null for none.
    void update(HWND owner, MirrorWidget* target);
    /// Stands below its part again, which may have moved; out of sight where the part is.
    void follow();
    /// Takes the colours anew.
    void restyle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(const QString& text);
    void end();
    void dress(QLabel& bubble) const;

    Stage& m_stage;
    HWND m_owner = nullptr;  // null: none is on show
    QPointer<MirrorWidget> m_target;
    QPointer<QLabel> m_bubble;  // belongs to the window it stands in
};

}  // namespace workbench::desktop
