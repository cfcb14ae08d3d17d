#include "controls/slider_panel_ctrl.h"

BOOL CVxDaSliderPanelCtrl::CreateEditPart() {
    return 0;
}
