#include "nav3d/force_update.h"

namespace {

bool s_forced = false;

}  // namespace

bool isNavUpdateForced() {
    return s_forced;
}

void setNavUpdateForced(bool forced) {
    s_forced = forced;
}
