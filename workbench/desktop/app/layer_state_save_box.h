#pragma once

#include "workbench/editor/layer_state_list.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace workbench::desktop {

/// Asks for the name and the description of a new layer state and saves it; accepted once it is saved.
class LayerStateSaveBox final : public QDialog {
public:
    /// The states must outlive it.
    LayerStateSaveBox(LayerStateList& states, QWidget& owner);

    QLineEdit& name() { return *m_name; }
    QLineEdit& description() { return *m_description; }
    /// What kept the state from being saved.
    QLabel& problem() { return *m_problem; }

    // QDialog:
    void accept() override;

private:
    LayerStateList& m_states;
    QLineEdit* m_name;
    QLineEdit* m_description;
    QLabel* m_problem;
};

}  // namespace workbench::desktop
