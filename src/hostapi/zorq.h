#pragma once

/// The host program: variables, documents, commands, profiles, menu data, frame windows.

#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>
#include <hostapi/zorq/frame_windows.h>
#include <hostapi/zorq/layers.h>
#include <hostapi/zorq/menu_data.h>
#include <hostapi/zorq/profiles.h>
#include <hostapi/zorq/selection.h>
#include <hostapi/zorq/variables.h>
#include <hostapi/zorq/views.h>
