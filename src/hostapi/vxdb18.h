#pragma once

/// The host's object library: registry and services, modules, the drawing database.

#include <hostapi/vxdb18/database.h>
#include <hostapi/vxdb18/dynamic_linker.h>
#include <hostapi/vxdb18/entity.h>
#include <hostapi/vxdb18/host_services.h>
#include <hostapi/vxdb18/layer.h>
#include <hostapi/vxdb18/layer_state_manager.h>
#include <hostapi/vxdb18/rx_object.h>
#include <hostapi/vxdb18/symbol_utilities.h>
#include <hostapi/vxdb18/text_style.h>
