#pragma once

#include "workbench/drawing/database/db_object.h"

#include <memory>

namespace workbench::drawing {

/// A fresh object of the kind, in no database, with every property at its default. Null for
/// `RecordKind::Table`.
std::unique_ptr<DbObject> makeRecord(RecordKind kind);

}  // namespace workbench::drawing
