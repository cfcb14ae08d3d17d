#pragma once

/// The host's toolkit for palettes: themes, palette set, palette, panels, tool panels with their
/// items, sliders, edit fields, combos, strips of controls, tooltips, balloons, and the host's own
/// toolbar controls.

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/combo.h>
#include <hostapi/qrui18/ctrl_container.h>
#include <hostapi/qrui18/image.h>
#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/palette.h>
#include <hostapi/qrui18/palette_set.h>
#include <hostapi/qrui18/panel.h>
#include <hostapi/qrui18/panel_set.h>
#include <hostapi/qrui18/prog_slider.h>
#include <hostapi/qrui18/quick_start_link.h>
#include <hostapi/qrui18/registry_access.h>
#include <hostapi/qrui18/theme.h>
#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/qrui18/tool_tip.h>
#include <hostapi/qrui18/toolbar_control.h>
