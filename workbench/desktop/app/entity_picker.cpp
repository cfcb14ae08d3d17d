#include "workbench/desktop/app/entity_picker.h"

#include "workbench/desktop/app/document_tabs.h"
#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kTaken = 1;  // what the loop ends with
constexpr int kCancelled = 0;

using Entities = EntityPicker::Entities;

/// A choice after a pick.
Entities changed(Entities chosen, const Entities& picked, bool removes) {
    for (const drawing::ObjectId id : picked) {
        const auto present = std::find(chosen.begin(), chosen.end(), id);
        if (removes && present != chosen.end())
            chosen.erase(present);
        else if (!removes && present == chosen.end())
            chosen.push_back(id);
    }
    return chosen;
}

/// Whether an event is something that the user does to a widget.
bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
        return true;
    default:
        return false;
    }
}

}  // namespace

EntityPicker::EntityPicker(Stage& stage, DocumentTabs& tabs,
                           std::function<void(const QString&)> tell)
    : m_stage(stage),
      m_tabs(tabs),
      m_tell(std::move(tell)) {
    m_stage.workbench.editor().selection().setPresenter(
        [this](Document& document) { return ask(document); });
    m_tabs.setOnPicked([this](Document& document, const Entities& picked, bool removes) {
        take(document, picked, removes);
    });
}

EntityPicker::~EntityPicker() {
    m_stage.workbench.editor().selection().setPresenter(nullptr);
    m_tabs.setOnPicked(nullptr);
}

/// While a script has the host nobody is asked, and one question at a time.
std::optional<Entities> EntityPicker::ask(Document& document) {
    m_tabs.refresh();
    DrawingView* const view = m_tabs.view();
    if (m_stage.pump.isHeld() || isAsking() || view == nullptr || view->document() != &document)
        return {};
    m_view = view;
    m_chosen.clear();
    m_view->setChosen({});
    m_view->setPicking(true);
    m_tell(
        QStringLiteral("Click objects or draw a window around them; with shift they are taken "
                       "away. Enter ends, Escape cancels."));
    qApp->installEventFilter(this);
    const bool taken = m_loop.exec() == kTaken;
    qApp->removeEventFilter(this);
    m_view->setPicking(false);
    m_view->setChosen({});
    m_view = nullptr;
    m_tell({});
    return taken ? std::optional(std::exchange(m_chosen, {})) : std::nullopt;
}

void EntityPicker::take(Document& document, const Entities& picked, bool removes) {
    if (!isAsking()) {
        select(document, picked, removes);
        return;
    }
    m_chosen = changed(std::move(m_chosen), picked, removes);
    m_view->setChosen(m_chosen);
}

/// A click beside all ends the selection.
void EntityPicker::select(Document& document, const Entities& picked, bool removes) {
    m_stage.pump.act([&] {
        Entities now = picked.empty() ? Entities() : changed(document.pickSet(), picked, removes);
        m_stage.workbench.editor().selection().selectBefore(document, now);
    });
}

bool EntityPicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close && watched == m_view->window())
        m_loop.exit(kCancelled);
    if (!isInput(event->type()) || !watched->isWidgetType() || watched == m_view)
        return false;
    if (event->type() == QEvent::KeyPress)
        endByKey(static_cast<QKeyEvent*>(event)->key());
    return true;
}

void EntityPicker::endByKey(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        m_loop.exit(kTaken);
    else if (key == Qt::Key_Escape)
        m_loop.exit(kCancelled);
}

}  // namespace workbench::desktop
