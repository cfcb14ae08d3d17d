#include "workbench/desktop/app/document_tabs.h"

#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

namespace workbench::desktop {

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

int DocumentTabs::indexOf(const Document* document) const {
    for (int index = 0; index < count(); ++index) {
        if (viewAt(index).document() == document)
            return index;
    }
    return -1;
}

void DocumentTabs::refresh() {
    const DocumentList& documents = m_stage.workbench.editor().documents();
    const auto fading =
        static_cast<int>(m_stage.workbench.editor().read(L"LAYLOCKFADECTL").asInteger());
    m_refreshing = true;
    for (int index = count() - 1; index >= 0; --index) {
        if (viewAt(index).document() == nullptr)
            delete widget(index);
    }
    for (Document* document : documents.all()) {
        if (indexOf(document) < 0)
            addTab(new DrawingView(m_stage.pump, *document, *m_stage.look), toQt(document->name()));
    }
    for (int index = 0; index < count(); ++index)
        viewAt(index).setFading(fading);
    setCurrentIndex(indexOf(documents.active()));
    m_refreshing = false;
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
    m_stage.pump.act(
        [this, index] { m_stage.workbench.editor().documents().close(*viewAt(index).document()); });
}

}  // namespace workbench::desktop
