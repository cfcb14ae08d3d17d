#pragma once

/// The host's window framework: windows, messages, menus, fonts, frames, libraries and their
/// resources, the user's locale. Everything happens on the one thread that runs the host's user interface.

#include <hostapi/window/button.h>
#include <hostapi/window/frame.h>
#include <hostapi/window/gdi.h>
#include <hostapi/window/geometry.h>
#include <hostapi/window/image_list.h>
#include <hostapi/window/locale.h>
#include <hostapi/window/menu.h>
#include <hostapi/window/message_map.h>
#include <hostapi/window/messages.h>
#include <hostapi/window/module.h>
#include <hostapi/window/tree_ctrl.h>
#include <hostapi/window/wnd.h>
