#pragma once

#include <optional>
#include <string_view>

namespace workbench {

/// The two sets of colours that the host is shown in.
enum class Shade { Light, Dark };

/// The shade of a name, "light" or "dark"; nothing for another name.
constexpr std::optional<Shade> shadeOf(std::string_view name) {
    if (name == "light")
        return Shade::Light;
    if (name == "dark")
        return Shade::Dark;
    return {};
}

/// The name of a shade.
constexpr const char* nameOf(Shade shade) {
    return shade == Shade::Dark ? "dark" : "light";
}

}  // namespace workbench
