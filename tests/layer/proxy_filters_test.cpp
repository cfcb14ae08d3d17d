#include "tests/layer/filter_combo_fixture.h"

namespace {

using workbench::Value;

const wchar_t* const kOverrides = L"Viewport Overrides";
const wchar_t* const kNewLayers = L"Unreconciled New Layers";

/// Test fixture: what of the host's own filters the tree holds.
class ProxyFiltersTest : public FilterComboTest {
protected:
    /// Opens the tree anew and asks.
    bool isShown(const wchar_t* filter) {
        if (isOpen())
            clickCombo();
        clickCombo();
        return isInTree(filter);
    }
    void setEvaluation(int evaluation) { set(L"LAYEREVAL", evaluation); }
    void setReconciled(const char* layer, bool reconciled) {
        setDb(std::string("layers[\"") + layer + "\"].reconciled", reconciled);
    }
    /// Has a layer come from a referenced drawing, which its name begins with.
    void makeDependent(const std::string& layer) {
        setDb("layers." + layer + ".name", "Site|" + layer);
    }
    void reconcileAll() {
        for (const char* layer : {"0", "Walls", "Doors", "Roof"})
            setReconciled(layer, true);
    }
};

TEST_F(ProxyFiltersTest, WithoutOverridesTheirFilterIsAbsent) {
    EXPECT_FALSE(isShown(kOverrides));
}

TEST_F(ProxyFiltersTest, OverridesThatCannotBeReadKeepTheirFilter) {
    // The refresh of the opening doesn't read the variable; the tree does, first of all.
    fail("vxedGetVar", {}, 1);
    EXPECT_TRUE(isShown(kOverrides));
}

TEST_F(ProxyFiltersTest, WithoutEvaluationNewLayersAreNeverShown) {
    setReconciled("Walls", false);
    setEvaluation(0);
    EXPECT_FALSE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, FullEvaluationShowsAnyNewLayers) {
    reconcileAll();
    setEvaluation(2);
    EXPECT_FALSE(isShown(kNewLayers));
    setReconciled("Walls", false);
    EXPECT_TRUE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, EvaluationOfDependentLayersShowsOnlyThose) {
    reconcileAll();
    setReconciled("Walls", false);
    setEvaluation(1);
    EXPECT_FALSE(isShown(kNewLayers));
    makeDependent("Walls");
    EXPECT_TRUE(isShown(kNewLayers));
    setReconciled("Site|Walls", true);
    setReconciled("Doors", false);
    EXPECT_FALSE(isShown(kNewLayers)) << "the dependent layer is an accepted one";
}

TEST_F(ProxyFiltersTest, UnreadableEvaluationShowsNone) {
    setReconciled("Walls", false);
    setEvaluation(2);
    bench().faults().fail("vxedGetVar", {}, 1, 1);
    EXPECT_FALSE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, TableThatCannotBeOpenedKeepsTheFilter) {
    setEvaluation(0);
    fail("VxDbDatabase::getSymbolTable", {}, 1);
    EXPECT_TRUE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, WalkThatCannotBeMadeKeepsTheFilter) {
    setReconciled("Walls", false);
    setEvaluation(1);
    fail("VxDbLayerTable::newIterator", {}, 1);
    EXPECT_TRUE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, LayersThatCannotBeReadAreNoDependentOnes) {
    reconcileAll();
    setReconciled("Walls", false);
    makeDependent("Walls");
    setEvaluation(1);
    fail("VxDbSymbolTableIterator::getRecordId", {}, 1);
    EXPECT_FALSE(isShown(kNewLayers));
}

TEST_F(ProxyFiltersTest, NoLayerIsAskedForWithoutEvaluation) {
    setEvaluation(0);
    takeJournal();
    isShown(kNewLayers);
    EXPECT_EQ(takeCallLines({"VxDbLayerTable::hasUnreconciledLayers"}), Calls{});
    setEvaluation(2);
    takeJournal();
    isShown(kNewLayers);
    EXPECT_EQ(
        takeCallLines({"VxDbLayerTable::hasUnreconciledLayers", "VxDbLayerTable::newIterator"}),
        Calls{"VxDbLayerTable::hasUnreconciledLayers()"});
}

}  // namespace
