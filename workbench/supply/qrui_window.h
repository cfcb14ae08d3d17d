#pragma once

#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <memory>
#include <string>
#include <utility>

namespace workbench::supply {

/// The window system of the workbench that lives now.
inline WindowSystem& windows() {
    return Workbench::current().windows();
}

/// Its toolkit.
inline Toolkit& toolkit() {
    return Workbench::current().toolkit();
}

/// What a window of the toolkit is made with; the widget is added by the caller.
inline WindowCreation creationOf(const char* className, DWORD style, const CRect& rect,
                                 const CWnd* parent, UINT id) {
    WindowCreation creation;
    creation.className = className;
    creation.style = style;
    creation.rect = rect;
    creation.parent = parent == nullptr ? nullptr : parent->m_hWnd;
    creation.id = static_cast<int>(id);
    return creation;
}

/// The client area of a window, empty without one.
inline CRect clientOf(const CWnd* window) {
    return window == nullptr ? CRect{} : window->GetClientRect();
}

/// Makes the window of an object that can only be a child: without a parent's window none is made.
template <class Type>
bool createChild(CWnd& object, WindowCreation creation, std::unique_ptr<Type> widget) {
    if (creation.parent == nullptr)
        return false;
    creation.widget = std::move(widget);
    return windows().create(object, std::move(creation));
}

}  // namespace workbench::supply
