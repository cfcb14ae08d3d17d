#include "workbench/desktop/mirror/stage.h"

#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::desktop {

Stage::Stage(Workbench& shown, Pump& runs, Shade shade)
    : workbench(shown),
      windows(shown.windows()),
      toolkit(shown.toolkit()),
      pump(runs),
      pictures(shown.toolkit().pictures()),
      look(&lookOf(shade)) {}

}  // namespace workbench::desktop
