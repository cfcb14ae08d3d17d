#pragma once

#include "workbench/drawing/value.h"

namespace workbench {
using drawing::Value;
}
