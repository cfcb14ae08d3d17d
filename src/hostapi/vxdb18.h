#pragma once

/// The host's object library: registry and services, modules, the drawing database.

#include <hostapi/vxdb18/database.h>
#include <hostapi/vxdb18/dynamic_linker.h>
#include <hostapi/vxdb18/host_services.h>
#include <hostapi/vxdb18/rx_object.h>
