#include "workbench/desktop/app/layer_state_boxes.h"

#include "workbench/desktop/app/layer_state_manager_box.h"
#include "workbench/desktop/app/layer_state_save_box.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

namespace workbench::desktop {

LayerStateBoxes::LayerStateBoxes(Stage& stage, QWidget& owner) : m_stage(stage), m_owner(owner) {
    m_stage.workbench.editor().layerStateDialogs().setPresenter(this);
}

LayerStateBoxes::~LayerStateBoxes() {
    m_stage.workbench.editor().layerStateDialogs().setPresenter(nullptr);
}

bool LayerStateBoxes::manage(LayerStateList& states) {
    return !m_stage.pump.isHeld() &&
           LayerStateManagerBox(states, m_owner).exec() == QDialog::Accepted;
}

bool LayerStateBoxes::save(LayerStateList& states) {
    return !m_stage.pump.isHeld() && LayerStateSaveBox(states, m_owner).exec() == QDialog::Accepted;
}

}  // namespace workbench::desktop
