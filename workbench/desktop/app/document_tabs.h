#pragma once

#include "workbench/desktop/look/look.h"
#include "workbench/drawing/database/geometry.h"
#include "workbench/drawing/database/object_id.h"

#include <QTabWidget>
#include <functional>
#include <utility>
#include <vector>

namespace workbench {
class Document;
}

namespace workbench::desktop {

class DrawingView;
struct Stage;

/// The open documents, a tab each, with their drawings. A click on a tab brings the document to the
/// front.
class DocumentTabs final : public QTabWidget {
public:
    explicit DocumentTabs(Stage& stage);

    /// Takes over which documents are open and which is in front, and how far locked layers fade.
    void refresh();
    void setLook(const Look& look);
    /// Told of each press of a mouse button in the drawing, before anything comes of it.
    void setOnPressed(std::function<void(QPointF)> told) { m_onPressed = std::move(told); }
    /// The view of the drawing in front; null if none is open.
    DrawingView* view() const;
    /// Told when the user wants a document closed.
    void setOnClosing(std::function<void(Document&)> told) { m_onClosing = std::move(told); }
    /// Told of each point that is clicked while points are asked for.
    void setOnPointed(std::function<void(const drawing::Vec3&)> told) {
        m_onPointed = std::move(told);
    }
    /// Told of the entities that are picked in a document, as its view tells them.
    using Picked =
        std::function<void(Document&, const std::vector<drawing::ObjectId>& picked, bool removes)>;
    void setOnPicked(Picked told) { m_onPicked = std::move(told); }
    DrawingView& viewAt(int index) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int indexOf(const Document* document) const;
    void add(Document& document);
    void refreshView(DrawingView& view) const;
    void activate(int index);
    void close(int index);

    Stage& m_stage;
    std::function<void(Document&)> m_onClosing;
    std::function<void(QPointF)> m_onPressed;
    std::function<void(const drawing::Vec3&)> m_onPointed;
    Picked m_onPicked;
    bool m_refreshing = false;  // a tab's change is not the user's
};

}  // namespace workbench::desktop
