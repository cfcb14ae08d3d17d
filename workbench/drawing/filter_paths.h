#pragma once

#include "workbench/drawing/database/database.h"

#include <string>
#include <vector>

namespace workbench::drawing {

/// Reads by a path that begins with "filters": alone the names of all filters, parents first;
/// then "current", "count", "root", or the name of a filter, which is a table with the members
/// `name`, `kind`, `expression`, `layers`, `shows` (the layers that it shows now), `parent` and
/// `children`. A name that is unknown gives nil. Throws `PathError`.
Value getFilterPath(const Database& database, const std::vector<std::string>& steps);

/// Changes by such a path: "current", "root", a filter's `name`, `kind`, `expression` or `layers`;
/// a filter as a whole by a table, in which `parent` (the root if left out) places a new filter;
/// nil deletes it. Throws `PathError`, and changes nothing then.
void setFilterPath(Database& database, const std::vector<std::string>& steps, const Value& value);

}  // namespace workbench::drawing
