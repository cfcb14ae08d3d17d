#pragma once

#include <hostapi/types.h>
#include <hostapi/window/tree_ctrl.h>

#include <functional>

/// Takes those of the host's own filters out of a tree that stand for nothing at the moment: viewport
/// overrides where no viewport has any, new layers where none is to be looked over. `findItem` finds an
/// item by its text, null for none.
void removeProxyFilters(CTreeCtrl& tree,
                        const std::function<HTREEITEM(const VxString& text)>& findItem);
