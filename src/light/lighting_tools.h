#pragma once

#include <hostapi/types.h>

class CVxDaControlMgr;

/// The lighting tools: toggles that turn a click into a command at a quiet moment, or, in paper
/// space and in the block editor, into the bare command for the user to answer. IDs are compared
/// without regard to case.

/// Whether an ID is that of the default lighting, the sun or the light glyph toggle.
bool isLightToggle(const VxString& itemId);
/// A click on one of these toggles. Returns 1.
int toggleLight(const VxString& itemId, CVxDaControlMgr& controls);

/// Whether an ID is that of a tool of the sky.
bool isSkylightTool(const VxString& itemId);
/// A click on a tool of the sky. Returns 0 if the sky is so already or can't be read, otherwise 1.
int setSkylight(const VxString& itemId, CVxDaControlMgr& controls);
