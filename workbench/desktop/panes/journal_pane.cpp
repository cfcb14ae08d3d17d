#include "workbench/desktop/panes/journal_pane.h"

#include "workbench/core/step_text.h"
#include "workbench/desktop/look/text.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr const char* kKinds[] = {"call",    "message",    "command", "var",     "item",
                                  "control", "balloon",    "box",     "tip",     "gesture",
                                  "dialog",  "navigation", "output",  "profile", "regen"};
constexpr int kTimeWidth = 80;  // pixels
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

/// Keeps the newest records, as many as the table takes.
void dropOldest(std::vector<JournalRecord>& records) {
    if (records.size() <= JournalModel::kMostRows)
        return;
    const std::size_t surplus = records.size() - JournalModel::kMostRows;
    records.erase(records.begin(), records.begin() + static_cast<std::ptrdiff_t>(surplus));
}

/// A call's result comes behind its record: renews records, which ascend, from the journal, if it
/// still has them.
void complete(std::vector<JournalRecord>& records, const Journal& journal) {
    const std::vector<JournalRecord>& present = journal.records();
    auto from = present.begin();
    for (JournalRecord& record : records) {
        from = std::lower_bound(
            from, present.end(), record.number,
            [](const JournalRecord& left, std::uint64_t number) { return left.number < number; });
        if (from != present.end() && from->number == record.number)
            record = *from;
    }
}

}  // namespace

JournalPane::JournalPane(Journal& journal)
    : m_journal(journal),
      m_table(makeTable()),
      m_roads(new GestureRoads) {
    setAccessibleName(QStringLiteral("Journal"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addLayout(makeControls());
    layout->addWidget(m_table);
    layout->addWidget(m_roads);
    m_roads->hide();
    m_batch.setSingleShot(true);
    connect(&m_batch, &QTimer::timeout, this, [this] { takeOver(); });
    m_listening = journal.addListener([this](const JournalRecord& record) { note(record); });
}

QHBoxLayout* JournalPane::makeControls() {
    auto* row = new QHBoxLayout;
    row->addWidget(makeKindMenu());
    auto* text = new QLineEdit;
    text->setPlaceholderText(QStringLiteral("Filter"));
    text->setAccessibleName(QStringLiteral("Filter the journal by text"));
    text->setClearButtonEnabled(true);
    connect(text, &QLineEdit::textChanged, this,
            [this](const QString& wanted) { m_filter.setText(wanted); });
    row->addWidget(text);
    m_pause = addButton(*row, QStringLiteral("Pause"));
    m_pause->setCheckable(true);
    connect(m_pause, &QToolButton::toggled, this, [this](bool paused) { setPaused(paused); });
    connect(addButton(*row, QStringLiteral("Clear")), &QToolButton::clicked, this, [this] {
        m_model.clear();
        m_roads->clearRoads();
    });
    QToolButton* const roads = addButton(*row, QStringLiteral("Gestures"));
    roads->setCheckable(true);
    connect(roads, &QToolButton::toggled, this, [this](bool shown) { setRoadsShown(shown); });
    connect(addButton(*row, QStringLiteral("Copy")), &QToolButton::clicked, this,
            [this] { QApplication::clipboard()->setText(copied()); });
    connect(addButton(*row, QStringLiteral("Save...")), &QToolButton::clicked, this,
            [this] { save(); });
    return row;
}

QTableView* JournalPane::makeTable() {
    auto* table = new QTableView;
    table->setModel(&m_filter);
    table->setAccessibleName(QStringLiteral("Records of the journal"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->setColumnWidth(JournalModel::TimeColumn, kTimeWidth);
    table->setColumnWidth(JournalModel::KindColumn, kKindWidth);
    QScrollBar* const bar = table->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar](int value) { m_follows = value >= bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int /*least*/, int most) {
        if (m_follows)
            bar->setValue(most);
    });
    return table;
}

QPushButton* JournalPane::makeKindMenu() {
    auto* button = new QPushButton(QStringLiteral("Kinds"));
    button->setAccessibleName(QStringLiteral("Kinds of records on show"));
    auto* menu = new QMenu(button);
    m_kinds = menu;
    connect(menu->addAction(QStringLiteral("All")), &QAction::triggered, this,
            [this] { setAllKinds(true); });
    connect(menu->addAction(QStringLiteral("None")), &QAction::triggered, this,
            [this] { setAllKinds(false); });
    QAction* idle = menu->addAction(QStringLiteral("Idle ticks"));
    idle->setCheckable(true);
    connect(idle, &QAction::toggled, this, [this](bool shown) { setIdleShown(shown); });
    menu->addSeparator();
    for (const char* kind : kKinds) {
        QAction* action = menu->addAction(QString::fromLatin1(kind));
        action->setCheckable(true);
        action->setChecked(true);
        action->setData(true);
        connect(action, &QAction::toggled, this,
                [this, action](bool shown) { m_filter.setKindShown(action->text(), shown); });
    }
    button->setMenu(menu);
    return button;
}

void JournalPane::setAllKinds(bool shown) {
    for (QAction* action : m_kinds->actions()) {
        if (action->data().toBool())
            action->setChecked(shown);
    }
}

/// The many calls and messages by which controls are kept up to date while nothing happens.
bool JournalPane::isNoise(const JournalRecord& record) const {
    return !m_idleShown && m_isIdle && m_isIdle() &&
           (record.kind == "call" || record.kind == "message");
}

void JournalPane::beginGesture(const QString& title) {
    m_roads->begin(title, m_lastNumber + 1);
}

void JournalPane::endGesture() {
    m_roads->end(m_lastNumber);
}

void JournalPane::setRoadsShown(bool shown) {
    m_table->setVisible(!shown);
    m_roads->setVisible(shown);
}

void JournalPane::note(const JournalRecord& record) {
    m_lastNumber = std::max(m_lastNumber, record.number);
    if (isNoise(record))
        return;
    m_fresh.push_back(record);
    // A burst without a turn of the event loop must not take more memory than the table.
    if (m_fresh.size() >= 2 * JournalModel::kMostRows)
        dropOldest(m_fresh);
    if (!m_batch.isActive())
        m_batch.start();
}

void JournalPane::takeOver() {
    m_batch.stop();
    // A record that an older listener added while it was told another one has come before that one.
    std::sort(m_fresh.begin(), m_fresh.end(),
              [](const auto& left, const auto& right) { return left.number < right.number; });
    complete(m_fresh, m_journal);
    std::move(m_fresh.begin(), m_fresh.end(), std::back_inserter(m_waiting));
    m_fresh.clear();
    dropOldest(m_waiting);
    if (isVisible() && !m_paused)
        showWaiting();
}

void JournalPane::showWaiting() {
    for (const JournalRecord& record : m_waiting)
        m_roads->add(record);
    m_model.append(std::exchange(m_waiting, {}));
}

void JournalPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    takeOver();
}

void JournalPane::setPaused(bool paused) {
    takeOver();
    m_paused = paused;
    m_pause->setChecked(paused);
    m_pause->setText(paused ? QStringLiteral("Resume") : QStringLiteral("Pause"));
    m_pause->setAccessibleName(m_pause->text());
    takeOver();
}

std::vector<const JournalRecord*> JournalPane::chosenRecords(bool onlySelected) const {
    std::vector<int> rows;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    const bool takesAll = !onlySelected || rows.empty();
    const int count = takesAll ? m_filter.rowCount() : static_cast<int>(rows.size());
    std::vector<const JournalRecord*> records;
    for (int place = 0; place < count; ++place) {
        const int row = takesAll ? place : rows[static_cast<std::size_t>(place)];
        records.push_back(&m_model.record(m_filter.mapToSource(m_filter.index(row, 0)).row()));
    }
    return records;
}

QString JournalPane::copied() const {
    std::string text;
    for (const JournalRecord* record : chosenRecords(true))
        text += describeStep(*record) + '\n';
    return toQt(std::string_view(text));
}

bool JournalPane::saveTo(const QString& path, QString& error) const {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        for (const JournalRecord* record : chosenRecords(false))
            file.write(QByteArray::fromStdString(toJsonLine(*record) + '\n'));
        if (file.commit())
            return true;
    }
    error = QStringLiteral("The journal can't be written to %1: %2").arg(path, file.errorString());
    return false;
}

void JournalPane::save() {
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Save the journal"),
                                                      QStringLiteral("journal.jsonl"));
    QString error;
    if (!path.isEmpty() && !saveTo(path, error) && m_onFailure)
        m_onFailure(error);
}

}  // namespace workbench::desktop
