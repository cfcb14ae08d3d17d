#include "workbench/desktop/app/layer_state_save_box.h"

#include "workbench/desktop/look/text.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace workbench::desktop {

LayerStateSaveBox::LayerStateSaveBox(LayerStateList& states, QWidget& owner)
    : QDialog(&owner),
      m_states(states),
      m_name(new QLineEdit),
      m_description(new QLineEdit),
      m_problem(new QLabel) {
    setWindowTitle(QStringLiteral("New Layer State"));
    auto* const form = new QFormLayout(this);
    form->addRow(QStringLiteral("&Name:"), m_name);
    form->addRow(QStringLiteral("&Description:"), m_description);
    m_problem->setWordWrap(true);
    form->addRow(m_problem);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
}

void LayerStateSaveBox::accept() {
    const std::wstring problem =
        m_states.save(toHost(m_name->text().trimmed()), toHost(m_description->text()));
    m_problem->setText(toQt(problem));
    if (problem.empty())
        QDialog::accept();
    else
        m_name->setFocus();
}

}  // namespace workbench::desktop
