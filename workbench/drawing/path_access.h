#pragma once

#include "workbench/drawing/database/database.h"

#include <string_view>

namespace workbench::drawing {

/// Reads a drawing by a path, as scripts do; steps are compared without regard to case.
///
/// A table (`layers`, `textstyles`, `visualstyles`, `backgrounds`, `suns`, `views`, `layouts`,
/// `states`, `render.presets`) is the list of its names, `viewports` that of the numbers in the
/// space on show (`layouts.NAME.viewports` in another), `entities` that of the entities' numbers;
/// `.count` is how many. A further step names one object, whose properties make a table, and one
/// more a property. `viewports.current` is the active one; `sun`, `background` and `visualstyle`
/// are what it shows; `current`, `geo` and `render` are the only ones of their kind,
/// `render.active` the render settings in force, and `filters` is as in `getFilterPath`. In a
/// point follow `x`, `y`, `z`, in any list a number from 1.
///
/// An object that isn't there reads as nil; anything else that leads nowhere throws `PathError`.
Value getByPath(const Database& database, std::string_view path);

/// Changes a drawing by a path, opening its object for write and closing it, as any tool does. A
/// table of properties for an object that isn't there adds it (`entities.new` for an entity), nil
/// erases one. A property of a sun, background or location that isn't there adds that first.
/// Throws `PathError` and leaves the drawing as it was.
void setByPath(Database& database, std::string_view path, const Value& value);

}  // namespace workbench::drawing
