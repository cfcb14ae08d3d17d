#include "bench/session.h"
#include "core/host_objects.h"
#include "layer/filter_combo.h"
#include "layer/filter_prop_ops.h"
#include "layer/filter_refresh.h"
#include "layer/layer_filter_mgr.h"
#include "workbench/drawing/database/database.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/editor/editor.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

// The walks over layers, and what the filters cost.

namespace {

using workbench::Value;

/// No panels of the example: what stands there would work too.
const std::string kNoMenu = bench::menuOf(1, 0);

/// A document with a number of layers beside its first one.
void addLayers(bench::Session& session, int count) {
    workbench::drawing::Database& data = session.workbench().editor().documents().current()->data();
    workbench::drawing::Layer layer;
    for (int i = 1; i < count; ++i) {
        layer.name = "L" + std::to_string(i);
        data.add(layer);
    }
}

/// Looks at each layer and changes none.
class Looking final : public CVxDaLayerFilterMgr::VxDaFilterPropOp {
public:
    explicit Looking(const VxLyLayerFilter& filter) : VxDaFilterPropOp(filter) {}
    bool operator()(VxDbLayerTableRecord& layer) override {
        benchmark::DoNotOptimize(layer.isLocked());
        return true;
    }
};

/// The module's walk, which opens and closes each layer.
void filterWalk(benchmark::State& state) {
    bench::Session session(kNoMenu);
    addLayers(session, static_cast<int>(state.range(0)));
    CVxDaLayerFilterMgr manager;
    manager.refreshFilters();
    Looking looking(*manager.root());
    VxDbDatabase* database = workingDatabase();
    for (auto _ : state)
        benchmark::DoNotOptimize(CVxDaLayerFilterMgr::forEachLayer(database, looking));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(filterWalk)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// The same calls of the host without the module: what a walk costs at least.
void bareWalk(benchmark::State& state) {
    bench::Session session(kNoMenu);
    addLayers(session, static_cast<int>(state.range(0)));
    VxDbDatabase* database = workingDatabase();
    for (auto _ : state) {
        VxDbLayerTable* table = nullptr;
        database->getSymbolTable(table, VxDbOpenMode::kForRead);
        VxDbLayerTableIterator* begun = nullptr;
        table->newIterator(begun, true, true);
        const std::unique_ptr<VxDbLayerTableIterator> place(begun);
        for (place->start(); !place->done(); place->step()) {
            VxDbObjectId id;
            place->getRecordId(id);
            VxDbObject* object = nullptr;
            vxdbOpenObject(object, id, VxDbOpenMode::kForRead);
            benchmark::DoNotOptimize(static_cast<VxDbLayerTableRecord*>(object)->isLocked());
            object->close();
        }
        table->close();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(bareWalk)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// Groups below the root.
void addGroups(bench::Session& session, int count) {
    workbench::drawing::Database& data = session.workbench().editor().documents().current()->data();
    for (int i = 0; i < count; ++i)
        workbench::drawing::setByPath(data, "filters.G" + std::to_string(i),
                                      Value::Table{{"kind", "group"}});
}

/// The tree is filled; sorting is the toolkit's.
void treeRebuild(benchmark::State& state) {
    bench::Session session(kNoMenu);
    session.showDashboard();
    addGroups(session, static_cast<int>(state.range(0)));
    CVxDaFilterComboCtrl combo;
    refreshFilterCombos();
    CVxDaLayerFilterComboDropdown dropdown(combo);
    dropdown.create();
    CVxDaFilterTreeCtrl tree(dropdown);
    tree.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 200}, &dropdown, 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(tree.rebuildTree());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(treeRebuild)->Arg(10)->Arg(100)->Arg(1'000)->Unit(benchmark::kMicrosecond);

/// All combos follow the filter in force.
void comboRefresh(benchmark::State& state) {
    bench::Session session(kNoMenu);
    session.showDashboard();
    CWnd parent;
    parent.CreateEx(0, L"Static", nullptr, WS_POPUP | WS_VISIBLE, {0, 0, 200, 200}, AfxGetMainWnd(),
                    0);
    std::vector<std::unique_ptr<CWnd>> combos;
    for (int i = 0; i < static_cast<int>(state.range(0)); ++i)
        combos.push_back(CVxDaFilterComboCtrl::make(&parent, {0, 0, 200, 20}, 603));
    for (auto _ : state)
        refreshFilterCombos();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(comboRefresh)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

}  // namespace
