#pragma once

#include "workbench/menu/menu_data.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace workbench {

struct MenuReadOptions {
    bool allowFlyoutCycles = false;  ///< takes flyouts that lead back to themselves
};

/// Reads a menu file (JSON, see docs/formats.md). The first trouble found is thrown as InputError,
/// "FILE:LINE: /json/pointer: reason"; names of custom controls and of modules are not looked up.
MenuData readMenuFile(const std::filesystem::path& file, const MenuReadOptions& options = {});

/// The same from a text; `place` stands for the file name in errors.
MenuData readMenuText(std::string_view text, const std::string& place,
                      const MenuReadOptions& options = {});

}  // namespace workbench
