#include "layer/filter_refresh.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

constexpr std::wstring_view kVariables[] = {L"TILEMODE"};
constexpr std::wstring_view kCommands[] = {L"LAYER", L"-LAYER", L"U", L"UNDO", L"REDO"};

std::vector<LayerFilterView*> s_views;  // live lists in order of creation; not owned

}  // namespace

// Kept as it is: the variable counts in exactly this spelling, as the host sends it.
const FamilyEvents kLayerFilterEvents{
    .variables = {kVariables, NameMatch::Exact},
    .commands = {kCommands, NameMatch::AnyCase},
    .documents = true,
    .refresh = refreshFilterCombos,
};

void addLayerFilterView(LayerFilterView* view) {
    s_views.push_back(view);
}

void removeLayerFilterView(LayerFilterView* view) {
    s_views.erase(std::remove(s_views.begin(), s_views.end(), view), s_views.end());
}

void refreshFilterCombos() {
    // By index: a refresh may end a list or make another.
    for (std::size_t i = 0; i < s_views.size(); ++i)
        s_views[i]->refreshFilters();
}
