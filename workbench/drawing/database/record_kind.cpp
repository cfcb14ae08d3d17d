#include "workbench/drawing/database/record_kind.h"

#include <array>

namespace workbench::drawing {

const char* kindName(RecordKind kind) {
    static constexpr std::array<const char*, kRecordKindCount + 1> kNames{
        "layer",          "text style",    "visual style",
        "background",     "sun",           "view",
        "layout",         "viewport",      "layer filter tree",
        "layer state",    "render preset", "active render settings",
        "render globals", "location",      "entity",
        "current state",  "table",
    };
    return kNames[static_cast<std::size_t>(kind)];
}

}  // namespace workbench::drawing
