#pragma once

#include "workbench/editor/layer_state_dialogs.h"

class QWidget;

namespace workbench::desktop {

struct Stage;

/// Has the dialogs of the layer states appear on the screen. While a script has the host nobody is asked:
/// they are cancelled then.
class LayerStateBoxes final : private LayerStatePresenter {
public:
    /// `owner` is the window that they belong to.
    LayerStateBoxes(Stage& stage, QWidget& owner);
    LayerStateBoxes(const LayerStateBoxes&) = delete;
    LayerStateBoxes& operator=(const LayerStateBoxes&) = delete;
    ~LayerStateBoxes() override;

private:
    // LayerStatePresenter:
    bool manage(LayerStateList& states) override;
    bool save(LayerStateList& states) override;

    Stage& m_stage;
    QWidget& m_owner;
};

}  // namespace workbench::desktop
