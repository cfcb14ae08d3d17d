#pragma once

#include "core/event_names.h"

/// What a family follows beside its controls, on behalf of the tools of all panels. Whoever tells of
/// events walks over the rows of all families.
struct FamilyEvents {
    EventNames variables;       ///< Changes of these concern it.
    EventNames commands;        ///< Ends of these concern it.
    bool documents = false;     ///< A document's becoming the current one concerns it.
    bool (*isDue)() = nullptr;  ///< Whether any variable or command concerns it now; null: never.
    void (*refresh)();          ///< Brings it in line with the drawing.
};
