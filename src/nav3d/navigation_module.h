#pragma once

#include <hostapi/window/module.h>

/// The host's module of navigation tools, if it is loaded and its service is registered; null
/// otherwise. It is never loaded from here.
HINSTANCE findNavigationModule();

/// A function that the module exports; null if it exports none of that name.
template <class Function>
Function findNavigationExport(HINSTANCE module, const char* name) {
    return reinterpret_cast<Function>(GetProcAddress(module, name));
}

/// Calls a function of the module, with what arguments it takes. Nothing happens without the module
/// or the function.
template <class... Arguments>
void callNavigationExport(const char* name, Arguments... arguments) {
    HINSTANCE module = findNavigationModule();
    if (module == nullptr)
        return;
    if (auto* function = findNavigationExport<void (*)(Arguments...)>(module, name))
        function(arguments...);
}
