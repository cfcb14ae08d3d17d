#include "layer/filter_refresh.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<LayerFilterView*> s_views;  // live lists in order of creation; not owned

}  // namespace

void addLayerFilterView(LayerFilterView* view) {
    s_views.push_back(view);
}

void removeLayerFilterView(LayerFilterView* view) {
    s_views.erase(std::remove(s_views.begin(), s_views.end(), view), s_views.end());
}

void refreshFilterCombos() {
    for (LayerFilterView* view : s_views)
        view->refreshFilters();
}
