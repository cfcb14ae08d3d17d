#include "layer/filter_refresh.h"

#include "controls/variable_access.h"
#include "layer/filter_combo.h"
#include "layer/layer_filter_mgr.h"
#include "layer/layer_texts.h"

#include <hostapi/zorq/layers.h>

#include <string_view>

namespace {

constexpr std::wstring_view kVariables[] = {L"TILEMODE"};
constexpr std::wstring_view kCommands[] = {L"LAYER", L"-LAYER", L"U", L"UNDO", L"REDO"};

/// Whether a filter is the host's own of viewport overrides, of which there are none.
bool isEmptyOverridesFilter(const VxLyLayerFilter& filter) {
    if (readVariableStrict(L"VPLAYEROVERRIDES") != 0)
        return false;
    if (!filter.dynamicallyGenerated() || filter.allowNested())
        return false;
    const VxString name = CVxDaLyCtrlMgdResMgr::GetLocalResString(L"FilterProxy_ViewportOverrides");
    return CollateNoCase(filter.name(), name) == 0;
}

}  // namespace

// Kept as it is: the variable counts in exactly this spelling, as the host sends it.
const FamilyEvents kLayerFilterEvents{
    .variables = {kVariables, NameMatch::Exact},
    .commands = {kCommands, NameMatch::AnyCase},
    .documents = true,
    .refresh = refreshFilterCombos,
};

void refreshFilterCombos() {
    CVxDaLayerFilterMgr* manager = layerFilterMgr();
    if (manager == nullptr)
        return;
    manager->refreshFilters();
    vxedSetUseCurrentFilterFlag(1);
    const VxLyLayerFilter* root = manager->root();
    const VxLyLayerFilter* current = manager->current();
    if (root == nullptr || current == nullptr)
        return;
    showInFilterCombos(*manager, isEmptyOverridesFilter(*current) ? *root : *current);
}
