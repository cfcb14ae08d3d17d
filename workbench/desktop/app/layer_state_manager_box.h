#pragma once

#include "workbench/editor/layer_state_list.h"

#include <QDialog>
#include <functional>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QVBoxLayout;

namespace workbench::desktop {

/// Lists the layer states: one is restored, which accepts the dialog, new ones are made, others renamed
/// in the list, or deleted.
class LayerStateManagerBox final : public QDialog {
public:
    /// The states must outlive it.
    LayerStateManagerBox(LayerStateList& states, QWidget& owner);

    QListWidget& list() { return *m_list; }
    /// What the selected state is about.
    QLabel& description() { return *m_description; }
    /// What kept the last action from being carried out.
    QLabel& problem() { return *m_problem; }
    QPushButton& restoreButton() { return *m_restore; }
    QPushButton& renameButton() { return *m_rename; }
    QPushButton& deleteButton() { return *m_delete; }
    QPushButton& newButton() { return *m_new; }

    // QDialog:
    void accept() override;

private:
    QVBoxLayout* makeButtons();
    QPushButton* addButton(QVBoxLayout& column, const QString& text, std::function<void()> action);
    /// Takes the states over, with the one of a name selected if it is there.
    void fill(const QString& selected);
    QString selectedName() const;
    void showSelection();
    void makeNew();
    void eraseSelected();
    void renamed(QListWidgetItem& item);

    LayerStateList& m_states;
    QListWidget* m_list;
    QLabel* m_description;
    QLabel* m_problem;
    QPushButton* m_restore = nullptr;
    QPushButton* m_new = nullptr;
    QPushButton* m_rename = nullptr;
    QPushButton* m_delete = nullptr;
};

}  // namespace workbench::desktop
