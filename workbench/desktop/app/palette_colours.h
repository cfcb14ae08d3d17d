#pragma once

#include "workbench/desktop/look/look.h"

#include <QPalette>

namespace workbench::desktop {

/// The colours of Qt's own widgets in a look.
QPalette paletteOf(const Look& look);

}  // namespace workbench::desktop
