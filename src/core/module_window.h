#pragma once

#include "core/module_call.h"

#include <hostapi/types.h>

/// A window class of the framework or the toolkit as this module uses it: each of its messages is a
/// call into the module, so that the object outlives what its handlers, and the framework's below
/// them, call.
template <class Base>
class ModuleWindow : public Base {
public:
    using Base::Base;

    // CWnd:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const ModuleCall call;
        return Base::WindowProc(message, wParam, lParam);
    }
};
