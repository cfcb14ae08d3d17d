#include "workbench/desktop/panes/search_box.h"

#include <QCompleter>
#include <QKeyEvent>

#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kMostHits = 12;  // on show at a time

}  // namespace

SearchBox::SearchBox(Workbench& workbench) : m_workbench(workbench) {
    setPlaceholderText(QStringLiteral("Find a tool"));
    setAccessibleName(QStringLiteral("Find a tool on the panels"));
    setClearButtonEnabled(true);
    auto* completer = new QCompleter(&m_labels, this);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(kMostHits);
    setCompleter(completer);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { search(text); });
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& label) { choose(label); });
}

void SearchBox::search(const QString& text) {
    m_hits = searchPanels(m_workbench, text);
    QStringList labels;
    for (const SearchHit& hit : m_hits)
        labels.append(hit.label);
    m_labels.setStringList(labels);
}

void SearchBox::choose(const QString& label) {
    const auto found = std::find_if(m_hits.begin(), m_hits.end(),
                                    [&](const SearchHit& hit) { return hit.label == label; });
    if (found == m_hits.end() || !m_onChosen)
        return;
    m_onChosen(*found);
    selectAll();
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        clear();
        if (m_onLeft)
            m_onLeft();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !m_hits.empty()) {
        choose(m_hits.front().label);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

}  // namespace workbench::desktop
