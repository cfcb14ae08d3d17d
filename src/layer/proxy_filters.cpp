#include "layer/proxy_filters.h"

#include "controls/variable_access.h"
#include "core/host_objects.h"
#include "core/opened_object.h"
#include "core/opened_table.h"
#include "layer/layer_texts.h"
#include "layer/layer_walk.h"

namespace {

/// Which new layers LAYEREVAL has the user look over.
constexpr int kDependentLayers = 1;
constexpr int kAllLayers = 2;

VxString textOf(const wchar_t* key) {
    return CVxDaLyCtrlMgdResMgr::GetLocalResString(key);
}

/// Whether one of the unreconciled layers comes from a referenced drawing; yes as well if they can't be
/// walked over.
bool mayHoldDependent(const VxDbLayerTable& table) {
    const auto place = walkLayers(table);
    if (place == nullptr)
        return true;
    place->setSkipReconciled(true);
    for (place->start(true, true); !place->done(); place->step(true, true)) {
        VxDbObjectId id;
        if (place->getRecordId(id) != Zorq::eOk)
            continue;
        const Opened<VxDbLayerTableRecord> layer(id);
        if (layer.get() != nullptr && layer.get()->isDependent())
            return true;
    }
    return false;
}

bool standsForLayers(const VxDbLayerTable& table, int evaluated) {
    if (evaluated <= 0 || !table.hasUnreconciledLayers())
        return false;
    return evaluated == kAllLayers || (evaluated == kDependentLayers && mayHoldDependent(table));
}

}  // namespace

void removeProxyFilters(CTreeCtrl& tree,
                        const std::function<HTREEITEM(const VxString& text)>& findItem) {
    const HTREEITEM overrides = findItem(textOf(L"FilterProxy_ViewportOverrides"));
    if (overrides != nullptr && readVariableStrict(L"VPLAYEROVERRIDES") == 0)
        tree.DeleteItem(overrides);
    const HTREEITEM unreconciled = findItem(textOf(L"FilterProxy_UnreconcileNew"));
    if (unreconciled == nullptr)
        return;
    const int evaluated = readVariableStrict(L"LAYEREVAL");
    VxDbDatabase* database = workingDatabase();
    if (database == nullptr)
        return;
    const OpenedTable<VxDbLayerTable> table(*database);
    if (table.get() != nullptr && !standsForLayers(*table.get(), evaluated))
        tree.DeleteItem(unreconciled);
}
