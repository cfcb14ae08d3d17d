#include "workbench/desktop/app/document_tabs.h"

#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/navigation/navigation_tool.h"

#include <QPainter>

namespace workbench::desktop {

namespace {

/// What a drag does while the navigation tool runs in a mode.
DragMode dragModeOf(int mode) {
    switch (mode) {
    case NavigationTool::kPan:
        return DragMode::Pan;
    case NavigationTool::kZoom:
    case NavigationTool::kDistance:
        return DragMode::Zoom;
    case NavigationTool::kSwivel:
        return DragMode::Swivel;
    case NavigationTool::kWalk:
        return DragMode::Walk;
    case NavigationTool::kFly:
        return DragMode::Fly;
    default:
        return DragMode::Orbit;
    }
}

}  // namespace

DocumentTabs::DocumentTabs(Stage& stage) : m_stage(stage) {
    setDocumentMode(true);
    setTabsClosable(true);
    setAccessibleName(QStringLiteral("Drawings"));
    // The host alone brings the keyboard to the drawing.
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabWidget::currentChanged, [this](int index) { activate(index); });
    connect(this, &QTabWidget::tabCloseRequested, [this](int index) { close(index); });
}

DrawingView& DocumentTabs::viewAt(int index) const {
    return *static_cast<DrawingView*>(widget(index));
}

DrawingView* DocumentTabs::view() const {
    return count() == 0 ? nullptr : &viewAt(currentIndex());
}

void DocumentTabs::paintEvent(QPaintEvent* event) {
    QTabWidget::paintEvent(event);
    if (count() > 0)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), m_stage.look->drawing);
    painter.setPen(m_stage.look->text);
    painter.drawText(
        rect(), Qt::AlignCenter | Qt::TextWordWrap,
        QStringLiteral("No drawing is open.\n\nDocument \u203a New begins one (Ctrl+N), "
                       "Document \u203a Open... takes one from a file (Ctrl+O)."));
}

int DocumentTabs::indexOf(const Document* document) const {
    for (int index = 0; index < count(); ++index) {
        if (viewAt(index).document() == document)
            return index;
    }
    return -1;
}

void DocumentTabs::refresh() {
    const DocumentList& documents = m_stage.workbench.editor().documents();
    m_refreshing = true;
    for (int index = count() - 1; index >= 0; --index) {
        if (viewAt(index).document() == nullptr)
            delete widget(index);
    }
    for (Document* document : documents.all()) {
        if (indexOf(document) < 0)
            add(*document);
    }
    for (int index = 0; index < count(); ++index)
        refreshView(viewAt(index));
    setCurrentIndex(indexOf(documents.active()));
    m_refreshing = false;
}

void DocumentTabs::refreshView(DrawingView& view) const {
    Workbench& workbench = m_stage.workbench;
    view.setFading(static_cast<int>(workbench.editor().read(L"LAYLOCKFADECTL").asInteger()));
    view.setDragMode(dragModeOf(workbench.navigation().mode()));
    view.setPointing(view.document()->processor().asksForPoint());
    if (!view.isPicking())
        view.setChosen(view.document()->pickSet());
}

void DocumentTabs::add(Document& document) {
    auto* const view = new DrawingView(m_stage.pump, document, *m_stage.look);
    view->setOnPressed([this](QPointF point) {
        if (m_onPressed)
            m_onPressed(point);
    });
    view->setOnPointed([this](const drawing::Vec3& point) {
        if (m_onPointed)
            m_onPointed(point);
    });
    view->setOnPicked([this, view](const std::vector<drawing::ObjectId>& picked, bool removes) {
        if (m_onPicked)
            m_onPicked(*view->document(), picked, removes);
    });
    addTab(view, toQt(document.name()));
}

void DocumentTabs::setLook(const Look& look) {
    for (int index = 0; index < count(); ++index)
        viewAt(index).setLook(look);
}

void DocumentTabs::activate(int index) {
    if (m_refreshing || index < 0)
        return;
    m_stage.pump.act([this, index] {
        m_stage.workbench.editor().documents().activate(*viewAt(index).document());
    });
}

void DocumentTabs::close(int index) {
    if (m_onClosing)
        m_onClosing(*viewAt(index).document());
}

}  // namespace workbench::desktop
