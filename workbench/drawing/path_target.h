#pragma once

#include "workbench/drawing/database/database.h"

#include <cstddef>
#include <string>
#include <vector>

namespace workbench::drawing {

/// What the first steps of a path name in a drawing.
struct PathTarget {
    enum class Form {
        Table,    ///< all objects of the kind
        Object,   ///< one object
        Missing,  ///< one object that the drawing hasn't got
    };

    Form form = Form::Table;
    RecordKind kind = RecordKind::Layer;
    ObjectId id;            // of an object; of the layout for a table of viewports
    std::string name;       // by which an object was looked for: a name, a number or empty
    std::size_t used = 1;   // steps that led there
    bool isActive = false;  // the object is the one that the active viewport shows
};

/// Follows the path as far as it names tables and objects. Throws `PathError` when its first step
/// is unknown.
PathTarget resolvePath(const Database& database, const std::vector<std::string>& steps);

/// Throws the `PathError` for a path that can't be followed beyond its first `used` steps.
[[noreturn]] void failPath(const std::vector<std::string>& steps, std::size_t used,
                           const std::string& reason);

/// The whole number that a step is; -1 if it is none.
int stepNumber(const std::string& step);

}  // namespace workbench::drawing
