#include "workbench/desktop/panes/journal_pane.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr const char* kKinds[] = {"call",    "message", "command", "var",    "item",    "control",
                                  "balloon", "box",     "tip",     "dialog", "gesture", "profile"};
constexpr int kTimeWidth = 70;  // pixels
constexpr int kKindWidth = 80;
constexpr int kRowHeight = 18;

QToolButton* addButton(QHBoxLayout& row, const QString& text) {
    auto* button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::TabFocus);
    row.addWidget(button);
    return button;
}

}  // namespace

JournalPane::JournalPane(Journal& journal) : m_journal(journal), m_table(new QTableView) {
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addKindMenu());
    auto* text = new QLineEdit;
    text->setPlaceholderText(QStringLiteral("Filter"));
    text->setAccessibleName(QStringLiteral("Filter the journal"));
    text->setClearButtonEnabled(true);
    connect(text, &QLineEdit::textChanged, this,
            [this](const QString& wanted) { m_filter.setText(wanted); });
    buttons->addWidget(text);
    m_pause = addButton(*buttons, QStringLiteral("Pause"));
    m_pause->setCheckable(true);
    connect(m_pause, &QToolButton::toggled, this, [this](bool paused) { setPaused(paused); });
    connect(addButton(*buttons, QStringLiteral("Clear")), &QToolButton::clicked, this,
            [this] { m_model.clear(); });
    connect(addButton(*buttons, QStringLiteral("Copy")), &QToolButton::clicked, this,
            [this] { QApplication::clipboard()->setText(copied()); });
    connect(addButton(*buttons, QStringLiteral("Save...")), &QToolButton::clicked, this,
            [this] { save(); });

    m_table->setModel(&m_filter);
    m_table->setAccessibleName(QStringLiteral("Journal"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setColumnWidth(JournalModel::kTime, kTimeWidth);
    m_table->setColumnWidth(JournalModel::kKind, kKindWidth);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(buttons);
    layout->addWidget(m_table);
}

QToolButton* JournalPane::addKindMenu() {
    auto* button = new QToolButton;
    button->setText(QStringLiteral("Kinds"));
    button->setAccessibleName(QStringLiteral("Kinds of records on show"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    for (const char* kind : kKinds) {
        QAction* action = menu->addAction(QString::fromLatin1(kind));
        action->setCheckable(true);
        action->setChecked(true);
        connect(action, &QAction::toggled, this,
                [this, action](bool shown) { m_filter.setKindShown(action->text(), shown); });
    }
    button->setMenu(menu);
    return button;
}

bool JournalPane::isAtEnd() const {
    const QScrollBar* const bar = m_table->verticalScrollBar();
    return bar->value() >= bar->maximum();
}

void JournalPane::takeOver() {
    std::vector<JournalRecord> records = m_journal.take();
    if (m_paused) {
        std::move(records.begin(), records.end(), std::back_inserter(m_waiting));
        return;
    }
    const bool follows = isAtEnd();
    m_model.append(std::move(records));
    if (follows && isVisible())
        m_table->scrollToBottom();
}

void JournalPane::setPaused(bool paused) {
    m_paused = paused;
    m_pause->setChecked(paused);
    if (!paused) {
        m_model.append(std::exchange(m_waiting, {}));
        m_table->scrollToBottom();
    }
}

QString JournalPane::copied() const {
    QStringList lines;
    const QModelIndexList selected = m_table->selectionModel()->selectedRows(JournalModel::kText);
    for (const QModelIndex& index : selected)
        lines.append(index.data().toString());
    for (int row = 0; selected.isEmpty() && row < m_filter.rowCount(); ++row)
        lines.append(m_filter.index(row, JournalModel::kText).data().toString());
    return lines.join(QLatin1Char('\n'));
}

bool JournalPane::saveTo(const QString& file, QString& reason) const {
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        reason = file + QStringLiteral(": the journal can't be written there");
        return false;
    }
    for (int row = 0; row < m_filter.rowCount(); ++row) {
        const int source = m_filter.mapToSource(m_filter.index(row, 0)).row();
        out.write(QByteArray::fromStdString(toJsonLine(m_model.record(source)) + "\n"));
    }
    return true;
}

void JournalPane::save() {
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Save the journal"),
                                                      QStringLiteral("journal.jsonl"));
    QString reason;
    if (!file.isEmpty() && !saveTo(file, reason) && m_onFailure)
        m_onFailure(reason);
}

}  // namespace workbench::desktop
