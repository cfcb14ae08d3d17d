#include "workbench/desktop/panes/search_box.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kMostVisible = 12;  // rows of the list
constexpr int kRowMargin = 12;    // pixels beside the text of a row

}  // namespace

SearchBox::SearchBox(const Toolkit& toolkit) : m_toolkit(toolkit) {
    setPlaceholderText(QStringLiteral("Find a tool"));
    setAccessibleName(QStringLiteral("Find a tool on the panels"));
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { search(text); });

    // Not by `setCompleter`: the field keeps what was typed while the list is walked through.
    m_list.setModel(&m_rows);
    m_list.setWidget(this);
    m_list.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_list.setMaxVisibleItems(kMostVisible);
    m_list.popup()->setAccessibleName(QStringLiteral("Tools that were found"));
    // The open list gets the keys first.
    m_list.popup()->installEventFilter(this);
    connect(&m_list, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& row) { choose(row.row()); });
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QLineEdit::eventFilter(watched, event);
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(event->key()))
        QLineEdit::keyPressEvent(event);
}

bool SearchBox::handleKey(int key) {
    if (key == Qt::Key_Escape) {
        leave();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    const QModelIndex marked = m_list.popup()->currentIndex();
    choose(m_list.popup()->isVisible() && marked.isValid() ? marked.row() : 0);
    return true;
}

void SearchBox::search(const QString& text) {
    m_hits = searchPanels(m_toolkit, text);
    QStringList rows;
    for (const SearchHit& hit : m_hits)
        rows.append(hit.label + QStringLiteral(" \u2013 ") + hit.panelTitle);
    if (m_hits.empty() && !text.trimmed().isEmpty())
        rows.append(QStringLiteral("Nothing found"));
    m_rows.setStringList(rows);
    if (rows.isEmpty())
        m_list.popup()->hide();
    else
        openList();
}

void SearchBox::openList() {
    const QAbstractItemView& list = *m_list.popup();
    const int needed = list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width();
    QRect place = rect();
    place.setWidth(std::max(width(), needed + kRowMargin));
    m_list.complete(place);
}

void SearchBox::choose(int row) {
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_hits.size())
        return;
    const SearchHit chosen = m_hits[place];
    m_list.popup()->hide();
    m_hits.clear();
    clear();
    if (m_onChosen)
        m_onChosen(chosen);
}

void SearchBox::leave() {
    m_list.popup()->hide();
    m_hits.clear();
    clear();
    if (m_onLeft)
        m_onLeft();
}

}  // namespace workbench::desktop
