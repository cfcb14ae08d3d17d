#pragma once

/// Visibility of what crosses the border between the host and the module.

#if defined(_WIN32)
#define VXHOST
#define VXDA_EXPORT extern "C" __declspec(dllexport)
#else
/// A class of the host: one type for all modules, so that casts and exceptions cross the border.
#define VXHOST __attribute__((visibility("default")))
/// A function that the module exports.
#define VXDA_EXPORT extern "C" __attribute__((visibility("default")))
#endif
