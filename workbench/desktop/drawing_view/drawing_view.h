#pragma once

#include "workbench/desktop/drawing_view/scene.h"
#include "workbench/desktop/look/look.h"
#include "workbench/drawing/database/geometry.h"
#include "workbench/drawing/database/object_id.h"
#include "workbench/drawing/database/reactors.h"
#include "workbench/drawing/records/view_parameters.h"

#include <QWidget>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace workbench {
class Document;
}

namespace workbench::desktop {

class Pump;

/// What a drag with the left button does with the view.
enum class DragMode { Orbit, Pan, Zoom, Swivel, Walk, Fly };

/// The drawing of a document as its current viewport shows it. A drag orbits, or does what the running
/// tool says; with shift or the middle button it pans, the wheel zooms; each gesture is one view of the viewport's history. A
/// locked viewport and the sheet of a layout stay as they are, and a drag ends when somebody else
/// moves the view meanwhile.
class DrawingView final : public QWidget, private drawing::DatabaseReactor {
public:
    DrawingView(Pump& pump, Document& document, const Look& look);
    DrawingView(const DrawingView&) = delete;
    DrawingView& operator=(const DrawingView&) = delete;
    ~DrawingView() override;

    /// Whose drawing it is; null once the document has been closed.
    Document* document() const { return m_document; }
    /// Told of each press of a button at a point, before anything comes of it.
    void setOnPressed(std::function<void(QPointF)> told) { m_onPressed = std::move(told); }
    /// Shows the whole drawing, from where it is seen now.
    void fit();
    /// What a drag with the left button does from now on.
    void setDragMode(DragMode mode) { m_mode = mode; }
    /// While points are asked for, a click tells one instead of beginning a drag.
    void setPointing(bool pointing);
    void setOnPointed(std::function<void(const drawing::Vec3&)> told) {
        m_onPointed = std::move(told);
    }
    /// While entities are picked, the left button does that: a click takes the one that shows there, a
    /// window from left to right those in it, from right to left those that it touches too. At other
    /// times a mere click picks, too, and nothing else does.
    void setPicking(bool picking);
    /// Told what was picked, nothing by a click beside all, and whether shift was held.
    using Picked = std::function<void(const std::vector<drawing::ObjectId>& picked, bool removes)>;
    void setOnPicked(Picked told) { m_onPicked = std::move(told); }
    bool isPicking() const { return m_isPicking; }
    /// Marks these entities, and no others.
    void setChosen(std::vector<drawing::ObjectId> chosen);
    /// LAYLOCKFADECTL has changed, or the colours have.
    void setFading(int percent);
    void setLook(const Look& look);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct Drag {
        drawing::ObjectId port;
        Qt::MouseButton button;
        DragMode mode;
        QPointF from;
        drawing::ViewParameters before;
        drawing::ViewParameters now;
    };

    /// The left button between its press and its release, as far as it may pick.
    struct Pick {
        QPointF from;
        QPointF now;
        bool removes;
        bool isClick() const;
    };

    // drawing::DatabaseReactor:
    void objectAppended(const drawing::DbObject& object) override;
    void objectModified(const drawing::DbObject& object) override;
    void objectErased(const drawing::DbObject& object, bool erasing) override;
    void databaseGoodbye(const drawing::Database& database) override;

    void changed();
    static drawing::ViewParameters dragged(const Drag& drag, QPointF way, QSizeF picture);
    bool isDragStill() const;
    /// What a viewport shows, or would at the end of the drag.
    drawing::ViewParameters shownIn(drawing::ObjectId port) const;
    void write(drawing::ObjectId port, const drawing::ViewParameters& view);
    const Scene& sceneIn(drawing::ObjectId port);
    QRect placeOf(drawing::ObjectId port) const;
    void point(QPointF place);
    void beginPick(const QMouseEvent& event);
    void endPick();
    void pickIn(drawing::ObjectId port, const Pick& pick);
    bool isInReason(drawing::ObjectId port, const drawing::ViewParameters& view);
    void paintModel(QPainter& painter, drawing::ObjectId port);
    void paintSheet(QPainter& painter, drawing::ObjectId layout);

    Pump& m_pump;
    Document* m_document;
    const Look* m_look;
    int m_fading = 50;
    std::map<drawing::ObjectId, Scene> m_scenes;  // by viewport; none: to be made anew
    std::optional<Drag> m_drag;
    quint64 m_turnedUntil =
        0;  // when the run of the wheel is over, milliseconds of the events' clock
    int m_wheelRest = 0;
    DragMode m_mode = DragMode::Orbit;
    bool m_isPointing = false;
    bool m_isPicking = false;
    std::optional<Pick> m_pick;
    std::vector<drawing::ObjectId> m_chosen;
    std::function<void(QPointF)> m_onPressed;
    std::function<void(const drawing::Vec3&)> m_onPointed;
    Picked m_onPicked;
};

}  // namespace workbench::desktop
