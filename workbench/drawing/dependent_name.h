#pragma once

#include <string_view>

namespace workbench::drawing {

/// Whether a symbol comes from a referenced drawing: its name is that drawing's, a bar and its own.
inline bool isDependentName(std::string_view name) {
    return name.find('|') != std::string_view::npos;
}

}  // namespace workbench::drawing
