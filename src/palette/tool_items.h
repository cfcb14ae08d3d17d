#pragma once

#include <hostapi/types.h>

#include <string_view>

/// What controls do to tools from outside, by the tools' IDs. IDs are exact where nothing else is
/// said.

/// Sets or clears state bits of all items of an ID. A name, if given, becomes theirs; an image key,
/// if given, names their small picture in the resource library. Returns 1; 0 if there is no panel
/// set or the ID isn't known.
int SetItemFlag(std::wstring_view id, bool on, UINT mask, const wchar_t* name = nullptr,
                const wchar_t* imageKey = nullptr);

/// Hides or shows items, now and when their panels are built. Returns 0 if an ID of the list has no
/// items, with those behind it left as they are; otherwise 1, also if the list of hidden items
/// didn't change.
int setItemsHidden(const CStringArray& ids, bool hide);

/// Whether the items of an ID are hidden.
bool isItemHidden(const VxString& id);

/// Names all items of an ID. Returns 1; 0 if there is no panel set or the ID isn't known.
int setItemName(std::wstring_view id, const VxString& name);

/// Makes a tool the current one of all flyouts under a key; tools are compared without regard to
/// case. Returns 1, also if there are no items under the key; 0 if there is no panel set, if one
/// of the items is no flyout (those before it have been changed then), or if a tool was refused.
int selectFlyoutTool(std::wstring_view flyoutKey, const VxString& toolKey);
