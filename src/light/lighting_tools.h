#pragma once

#include <hostapi/types.h>

#include <optional>

/// A click on one of the lighting tools, by its ID, compared without regard to case: a toggle turns
/// it into a command at a quiet moment, or, in paper space and in the block editor, into the bare
/// command for the user to answer; a tool of the sky into a command at a quiet moment. Nothing for an
/// ID of another family; 0 if the sky is so already or can't be read; otherwise 1.
std::optional<int> clickLightingTool(const VxString& id);
