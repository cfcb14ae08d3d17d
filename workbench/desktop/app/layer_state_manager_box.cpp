#include "workbench/desktop/app/layer_state_manager_box.h"

#include "workbench/desktop/app/layer_state_save_box.h"
#include "workbench/desktop/look/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kNameRole = Qt::UserRole;  // the name of an entry's state, whatever its text is now

}  // namespace

LayerStateManagerBox::LayerStateManagerBox(LayerStateList& states, QWidget& owner)
    : QDialog(&owner),
      m_states(states),
      m_list(new QListWidget),
      m_description(new QLabel),
      m_problem(new QLabel) {
    setWindowTitle(QStringLiteral("Layer States Manager"));
    m_list->setAccessibleName(QStringLiteral("Layer states"));
    m_description->setWordWrap(true);
    m_problem->setWordWrap(true);
    auto* const left = new QVBoxLayout;
    left->addWidget(m_list);
    left->addWidget(m_description);
    left->addWidget(m_problem);
    auto* const row = new QHBoxLayout(this);
    row->addLayout(left);
    row->addLayout(makeButtons());
    connect(m_list, &QListWidget::currentItemChanged, this, [this] { showSelection(); });
    connect(m_list, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* item) { renamed(*item); });
    fill({});
}

QVBoxLayout* LayerStateManagerBox::makeButtons() {
    auto* const column = new QVBoxLayout;
    m_restore = addButton(*column, QStringLiteral("&Restore"), [this] { accept(); });
    m_restore->setDefault(true);
    m_new = addButton(*column, QStringLiteral("&New..."), [this] { makeNew(); });
    m_rename = addButton(*column, QStringLiteral("Rena&me"),
                         [this] { m_list->editItem(m_list->currentItem()); });
    m_delete = addButton(*column, QStringLiteral("&Delete"), [this] { eraseSelected(); });
    column->addStretch();
    addButton(*column, QStringLiteral("&Close"), [this] { reject(); });
    return column;
}

QPushButton* LayerStateManagerBox::addButton(QVBoxLayout& column, const QString& text,
                                             std::function<void()> action) {
    auto* const button = new QPushButton(text);
    connect(button, &QPushButton::clicked, this, [action = std::move(action)] { action(); });
    column.addWidget(button);
    return button;
}

void LayerStateManagerBox::fill(const QString& selected) {
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        for (const std::wstring& name : m_states.names()) {
            auto* const item = new QListWidgetItem(toQt(name), m_list);
            item->setData(kNameRole, toQt(name));
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            if (item->text() == selected)
                m_list->setCurrentItem(item);
        }
        if (m_list->currentItem() == nullptr && m_list->count() > 0)
            m_list->setCurrentRow(0);
    }
    showSelection();
}

QString LayerStateManagerBox::selectedName() const {
    const QListWidgetItem* const item = m_list->currentItem();
    return item == nullptr ? QString() : item->data(kNameRole).toString();
}

void LayerStateManagerBox::showSelection() {
    const bool isAny = m_list->currentItem() != nullptr;
    for (QPushButton* const button : {m_restore, m_rename, m_delete})
        button->setEnabled(isAny);
    m_description->setText(toQt(m_states.descriptionOf(toHost(selectedName()))));
}

void LayerStateManagerBox::accept() {
    const std::wstring problem = m_states.restore(toHost(selectedName()));
    m_problem->setText(toQt(problem));
    if (problem.empty())
        QDialog::accept();
}

void LayerStateManagerBox::makeNew() {
    LayerStateSaveBox box(m_states, *this);
    if (box.exec() == Accepted)
        fill(box.name().text().trimmed());
}

void LayerStateManagerBox::eraseSelected() {
    m_problem->setText(toQt(m_states.erase(toHost(selectedName()))));
    fill({});
}

/// The text of an entry was edited; one that can't be the state's name goes back.
void LayerStateManagerBox::renamed(QListWidgetItem& item) {
    const QString before = item.data(kNameRole).toString();
    const QString after = item.text().trimmed();
    const std::wstring problem = m_states.rename(toHost(before), toHost(after));
    m_problem->setText(toQt(problem));
    const QSignalBlocker quiet(m_list);
    item.setText(problem.empty() ? after : before);
    item.setData(kNameRole, item.text());
}

}  // namespace workbench::desktop
