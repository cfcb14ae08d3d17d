#pragma once

#include <hostapi/vxdb18/entity.h>
#include <hostapi/zorq/variables.h>

/// Selection sets. All of these return 5100 on success and -5001 otherwise.

/// Has the user pick entities, where all arguments but the last are null; the set goes back by
/// `vxedSSFree`. Not a success when the user cancels or picks nothing.
int vxedSSGet(const wchar_t* mode, const void* firstPoint, const void* secondPoint,
              const VxResultBuffer* filter, VxEdName& set);
/// The number of entities of a set.
int vxedSSLength(const VxEdName& set, std::int32_t* length);
/// The name of an entity of a set, from 0 on.
int vxedSSName(const VxEdName& set, std::int32_t index, VxEdName& entity);
/// Gives a set back.
int vxedSSFree(const VxEdName& set);
