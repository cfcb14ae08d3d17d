#pragma once

#include <hostapi/types.h>

/// An export of a module by file name; the module is loaded if it isn't yet. Null if the module
/// can't be loaded or has no such export.
void* findModuleExport(const VxString& moduleFile, const char* symbol);
