#include "layer/filter_prop_ops.h"

#include "tests/layer/filter_walk_fixture.h"

namespace {

// On and off

TEST_F(FilterWalkTest, TurnsTheLayersOfAFilterOffAndOn) {
    EXPECT_EQ(manager().setLayersOn(L"house", false), 1);
    EXPECT_EQ(layersThatAre("on"), (Texts{"0", "Roof"}));
    EXPECT_EQ(manager().setLayersOn(L"House", true), 1);
    EXPECT_EQ(layersThatAre("on"), (Texts{"0", "Walls", "Doors", "Roof"}));
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, CurrentLayerIsAskedForOnceAndStaysOnWithYes) {
    showAll();
    answer("box", "yes");
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(layersThatAre("on"), Texts{"0"});
    EXPECT_EQ(takeTexts("box"), Texts{workbench::toUtf8(
                                    L"The current layer is about to be turned off. Do you want to "
                                    L"keep it on?")});
}

TEST_F(FilterWalkTest, CurrentLayerGoesOffWithNo) {
    showAll();
    answer("box", "no");
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(layersThatAre("on"), Texts{});
    EXPECT_EQ(takeCallLines({"AfxMessageBox"}).size(), 1U);
    takeTexts("box");
}

TEST_F(FilterWalkTest, CurrentLayerIsNotAskedForWhereItWouldNotChange) {
    showAll();
    setLayer("0", "on", false);
    EXPECT_EQ(manager().setLayersOn(L"Everything", false), 1);
    EXPECT_EQ(manager().setLayersOn(L"Everything", true), 1);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(FilterWalkTest, CurrentLayerIsAskedForAfterItsUpgrade) {
    addGroup("Zero", {"0"});
    refresh();
    answer("box", "no");
    manager().setLayersOn(L"Zero", false);
    EXPECT_EQ(takeCallLines(
                  {"VxDbObject::upgradeOpen", "AfxMessageBox", "VxDbLayerTableRecord::setIsOff"})
                  .size(),
              3U);
    takeTexts("box");
    fail("VxDbObject::upgradeOpen", {}, 1);
    setLayer("0", "on", true);
    EXPECT_EQ(manager().setLayersOn(L"Zero", false), 0);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

// Frozen and thawed

TEST_F(FilterWalkTest, FreezesAndThawsTheLayersOfAFilter) {
    EXPECT_EQ(manager().setLayersFrozen(L"House", true), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Doors"}));
    EXPECT_EQ(manager().setLayersFrozen(L"House", false), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, CurrentLayerIsRefusedOnceAndTheOthersFrozen) {
    showAll();
    EXPECT_EQ(manager().setLayersFrozen(L"Everything", true), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Doors", "Roof"}));
    EXPECT_EQ(takeTexts("box"), Texts{"The current layer cannot be frozen."});
}

TEST_F(FilterWalkTest, CurrentLayerIsRefusedBeforeAnyUpgrade) {
    addGroup("Zero", {"0"});
    refresh();
    manager().setLayersFrozen(L"Zero", true);
    EXPECT_EQ(takeCallLines({"VxDbObject::upgradeOpen"}), Calls{});
    takeTexts("box");
}

// Locked

TEST_F(FilterWalkTest, LocksAndUnlocksTheLayersOfAFilter) {
    showAll();
    EXPECT_EQ(manager().setLayersLocked(L"Everything", true), 1);
    EXPECT_EQ(layersThatAre("locked"), (Texts{"0", "Walls", "Doors", "Roof"}));
    EXPECT_EQ(manager().setLayersLocked(L"House", false), 1);
    EXPECT_EQ(layersThatAre("locked"), (Texts{"0", "Roof"}));
}

// In one viewport

TEST_F(FilterWalkTest, InModelSpaceNothingIsFrozenInAViewport) {
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(takeCallLines({"VxDbDatabase::getSymbolTable"}), Calls{});
}

TEST_F(FilterWalkTest, FreezesAndThawsInTheCurrentViewportAlone) {
    enterViewport();
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors"}));
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", false), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(openCount(), 0U);
}

TEST_F(FilterWalkTest, CurrentLayerIsNeverFrozenInAViewportAndNothingIsSaid) {
    showAll();
    enterViewport();
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"Everything", true), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors", "Roof"}));
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(FilterWalkTest, ViewportThatCannotBeOpenedEndsTheFreezingAtTheFirstLayer) {
    enterViewport();
    failAt("vxdbOpenObject", 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, WithoutAViewportFreezingEndsAtTheFirstLayer) {
    enterViewport();
    fail("vxedGetCurViewportObjectId", {}, 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, WithoutACurrentLayerFreezingEndsAtTheFirstLayer) {
    enterViewport();
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(takeCallLines({"vxedGetCurViewportObjectId"}), Calls{});
}

TEST_F(FilterWalkTest, FailedFreezeEndsTheWalkWithTheEarlierLayersFrozen) {
    enterViewport();
    failAt("VxDbViewport::freezeLayersInViewport", 2);
    EXPECT_EQ(manager().setLayersFrozenInViewport(L"House", true), 0);
    EXPECT_EQ(frozenHere(), Texts{"Walls"});
}

// Isolated

TEST_F(FilterWalkTest, IsolatesInAllViewportsByFreezingTheOthers) {
    setLayer("Walls", "frozen", true);
    EXPECT_EQ(manager().isolateGroupAllViewports(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), (Texts{"Walls", "Roof"}))
        << "a frozen member stays frozen, the current layer thawed";
}

TEST_F(FilterWalkTest, IsolationInAllViewportsEndsWithoutACurrentLayer) {
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().isolateGroupAllViewports(L"House"), 0);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, IsolatesInTheActiveViewport) {
    enterViewport();
    setLayer("Walls", "frozen", true);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
    EXPECT_EQ(frozenHere(), Texts{"Roof"});
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"Top"), 1);
    EXPECT_EQ(frozenHere(), (Texts{"Walls", "Doors"}));
}

TEST_F(FilterWalkTest, CurrentLayerIsLeftAloneByBothIsolations) {
    addGroup("Zero", {"0"});
    refresh();
    enterViewport();
    manager().isolateGroupActiveViewport(L"House");
    manager().isolateGroupAllViewports(L"House");
    EXPECT_EQ(layersThatAre("frozen"), Texts{"Roof"});
    EXPECT_EQ(frozenHere(), Texts{"Roof"});
}

TEST_F(FilterWalkTest, IsolationWithoutTheViewportWalksOverAllAndDoesNothing) {
    enterViewport();
    failAt("vxdbOpenObject", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    fail("vxedGetCurViewportObjectId", {}, 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
}

TEST_F(FilterWalkTest, IsolationInAViewportWithoutACurrentLayerHasNoViewport) {
    enterViewport();
    fail("VxDbDatabase::clayer", {}, 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(frozenHere(), Texts{});
    EXPECT_EQ(takeCallLines({"vxedGetCurViewportObjectId"}), Calls{});
}

TEST_F(FilterWalkTest, IsolationInModelSpaceChangesNothing) {
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 1);
    EXPECT_EQ(layersThatAre("frozen"), Texts{});
}

TEST_F(FilterWalkTest, MembersThatCannotBeThawedEndTheIsolation) {
    enterViewport();
    failAt("VxDbObject::upgradeOpen", 2);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    EXPECT_EQ(frozenHere(), Texts{});
    failAt("VxDbViewport::thawLayersInViewport", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    failAt("VxDbViewport::freezeLayersInViewport", 1);
    EXPECT_EQ(manager().isolateGroupActiveViewport(L"House"), 0);
    EXPECT_EQ(frozenHere(), Texts{});
}

}  // namespace
