#pragma once

#include "workbench/drawing/database/database.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace workbench::drawing {

/// A drawing as a document holds it: its objects, and the system variables that its file carries.
struct Drawing {
    explicit Drawing(std::uint32_t serial) : db(serial) {}

    Database db;
    std::map<std::string, Value> variables;  // by name in capital letters; those not in `db`
    std::string fileName;                    // empty as long as there is no file
};

/// A drawing with the defaults of each section, and a sun that is off. Nothing can be undone in it
/// yet. `serial` is that of its database.
std::unique_ptr<Drawing> makeNewDrawing(std::uint32_t serial = 1);

}  // namespace workbench::drawing
