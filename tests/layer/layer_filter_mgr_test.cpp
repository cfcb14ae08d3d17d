#include "layer/layer_filter_mgr.h"

#include "tests/layer/layer_filter_fixture.h"

namespace {

using support::Sent;

// The copy

TEST_F(LayerFilterTest, CopyHoldsRootAndCurrentFilter) {
    ASSERT_NE(manager().root(), nullptr);
    EXPECT_EQ(manager().current(), manager().root());
    EXPECT_NE(filter(L"House"), nullptr);
}

TEST_F(LayerFilterTest, CurrentFilterOfTheDrawingIsTheCurrentOneOfTheCopy) {
    setDb("filters.current", "Top");
    refresh();
    EXPECT_EQ(manager().current(), filter(L"Top"));
}

TEST_F(LayerFilterTest, WithoutADatabaseNothingIsLoadedAndTheCopyStays) {
    EXPECT_EQ(manager().loadFilters(nullptr), 0);
    EXPECT_NE(filter(L"House"), nullptr);
}

TEST_F(LayerFilterTest, WithoutAHostsManagerTheCopyStays) {
    fail("vxlyGetLayerFilterManager", {}, 1);
    manager().refreshFilters();
    EXPECT_NE(filter(L"House"), nullptr);
}

TEST_F(LayerFilterTest, FailedReadLeavesNoTreeAndNothingIsFound) {
    fail("VxLyLayerFilterManager::getFilters", {}, 1);
    manager().refreshFilters();
    EXPECT_EQ(manager().root(), nullptr);
    EXPECT_EQ(manager().current(), nullptr);
    EXPECT_EQ(filter(L"House"), nullptr);
    EXPECT_EQ(manager().addGroupFilter(L"All"), L"");
    EXPECT_EQ(manager().convertToGroup(L"House"), 0);
    EXPECT_FALSE(manager().deleteFilter(L"House"));
    EXPECT_FALSE(manager().renameFilter(L"House", L"Home"));
    EXPECT_EQ(manager().setLayersOn(L"House", false), 0);
    EXPECT_EQ(manager().uniqueFilterName(L"Base"), L"Base1");
}

TEST_F(LayerFilterTest, RefreshReadsTheCurrentDocumentAlone) {
    newDocument(L"B");
    manager().refreshFilters();
    EXPECT_EQ(filter(L"House"), nullptr);
    activateDocument(L"A");
    manager().refreshFilters();
    EXPECT_NE(filter(L"House"), nullptr);
}

TEST_F(LayerFilterTest, RefreshEmptiesTheMergedPictures) {
    manager().images().add(*filter(L"House"));
    ASSERT_EQ(manager().images().merged().GetImageCount(), 2);
    manager().refreshFilters();
    EXPECT_EQ(manager().images().merged().GetImageCount(), 0);
}

TEST_F(LayerFilterTest, SaveStoresTheCopyUnderALock) {
    filter(L"House")->setName(L"Home");
    takeJournal();
    EXPECT_EQ(manager().saveFilters(), 1);
    EXPECT_TRUE(isStored("Home"));
    EXPECT_FALSE(isStored("House"));
    const Calls made =
        takeCallLines({"VxAxDocLock::VxAxDocLock", "vxlyGetLayerFilterManager",
                       "VxLyLayerFilterManager::setFilters", "VxAxDocLock::~VxAxDocLock"});
    EXPECT_EQ(made,
              (Calls{"VxAxDocLock::VxAxDocLock(object, 0)", "vxlyGetLayerFilterManager(object)",
                     "VxLyLayerFilterManager::setFilters(object, object)",
                     "VxAxDocLock::~VxAxDocLock()"}));
}

TEST_F(LayerFilterTest, SaveWithoutADocumentOrAHostsManagerAnswersNo) {
    fail("vxlyGetLayerFilterManager", {}, 1);
    EXPECT_EQ(manager().saveFilters(), 0);
    closeDocument(L"A");
    takeJournal();
    EXPECT_EQ(manager().saveFilters(), 0);
    EXPECT_EQ(takeCallLines({"VxAxDocLock::VxAxDocLock"}), Calls{});
}

TEST_F(LayerFilterTest, CopyIsUsedOnAfterASave) {
    VxLyLayerFilter* house = filter(L"House");
    manager().saveFilters();
    EXPECT_EQ(filter(L"House"), house);
}

// Filters by name

TEST_F(LayerFilterTest, NamesAreFoundWithoutRegardToCase) {
    EXPECT_EQ(filter(L"hOUSE"), filter(L"House"));
    EXPECT_EQ(filter(L"Hous"), nullptr);
    EXPECT_EQ(filter(L""), nullptr);
}

TEST_F(LayerFilterTest, SearchBeginsAtTheFilterItself) {
    addGroup("Inner", {"Roof"}, "Top");
    refresh();
    VxLyLayerFilter* top = filter(L"Top");
    EXPECT_EQ(CVxDaLayerFilterMgr::findFilter(L"top", top), top);
    EXPECT_EQ(CVxDaLayerFilterMgr::findFilter(L"Inner", top), filter(L"Inner"));
    EXPECT_EQ(CVxDaLayerFilterMgr::findFilter(L"House", top), nullptr);
    EXPECT_EQ(CVxDaLayerFilterMgr::findFilter(L"House", nullptr), nullptr);
}

TEST_F(LayerFilterTest, ApplyingSendsATransparentCommand) {
    EXPECT_EQ(manager().setCurrentFilter(L"house"), 1);
    EXPECT_EQ(manager().current(), filter(L"House"));
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'._-layer _filter _set house\n\n", "line"}}));
}

TEST_F(LayerFilterTest, ApplyingANameThatIsGoneLeavesNoCurrentFilterAndSendsNothing) {
    EXPECT_EQ(manager().setCurrentFilter(L"Gone"), 1);
    EXPECT_EQ(manager().current(), nullptr);
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
}

TEST_F(LayerFilterTest, ApplyingNoNameChangesNothing) {
    EXPECT_EQ(manager().setCurrentFilter(L""), 0);
    EXPECT_EQ(manager().current(), manager().root());
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(LayerFilterTest, ApplyDoesNotStoreTheFiltersItself) {
    manager().setCurrentFilter(L"House");
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
    takeSent();
}

// New groups

TEST_F(LayerFilterTest, NewGroupsTakeTheFirstFreeNumber) {
    const std::wstring root = manager().root()->name();
    EXPECT_EQ(manager().addGroupFilter(root), L"Group Filter1");
    EXPECT_EQ(manager().addGroupFilter(root), L"Group Filter2");
    EXPECT_TRUE(manager().deleteFilter(L"Group Filter1"));
    EXPECT_EQ(manager().addGroupFilter(root), L"Group Filter1");
    EXPECT_TRUE(isStored("Group Filter2"));
}

TEST_F(LayerFilterTest, NewGroupIsAnEmptyOneBelowItsParent) {
    EXPECT_EQ(manager().addGroupFilter(L"top"), L"Group Filter1");
    EXPECT_EQ(stored("Group Filter1", "parent"), workbench::Value("Top"));
    EXPECT_EQ(stored("Group Filter1", "kind"), workbench::Value("group"));
    EXPECT_EQ(layersOf("Group Filter1"), Texts{});
}

TEST_F(LayerFilterTest, ParentThatIsGoneOrAllowsNoNestingGetsNoGroup) {
    EXPECT_EQ(manager().addGroupFilter(L"Gone"), L"");
    EXPECT_EQ(manager().addGroupFilter(L"Unreconciled New Layers"), L"");
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
}

TEST_F(LayerFilterTest, GroupThatCannotBeMadeOrNestedLeavesTheTreeAsItWas) {
    const std::wstring root = manager().root()->name();
    fail("VxLyLayerGroup::new", {}, 1);
    EXPECT_EQ(manager().addGroupFilter(root), L"");
    fail("VxLyLayerFilter::addNested", {}, 1);
    EXPECT_EQ(manager().addGroupFilter(root), L"");
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
    EXPECT_EQ(filter(L"Group Filter1"), nullptr);
}

// Renaming

TEST_F(LayerFilterTest, RenamingStoresTheNewName) {
    EXPECT_TRUE(manager().renameFilter(L"House", L"Home"));
    EXPECT_TRUE(isStored("Home"));
    EXPECT_FALSE(isStored("House"));
}

TEST_F(LayerFilterTest, RenameThatChangesOnlyTheCaseDoesNothing) {
    EXPECT_FALSE(manager().renameFilter(L"House", L"HOUSE"));
    EXPECT_EQ(takeCallLines({"AfxMessageBox", "VxLyLayerFilterManager::setFilters"}), Calls{});
    EXPECT_TRUE(isStored("House"));
}

TEST_F(LayerFilterTest, BlanksAroundANewNameAreStored) {
    EXPECT_TRUE(manager().renameFilter(L"House", L" Home "));
    EXPECT_EQ(filter(L" Home ")->name(), L" Home ");
    EXPECT_TRUE(isStored(" Home "));
}

TEST_F(LayerFilterTest, RenameThatOnlyAddsBlanksIsNotUnique) {
    EXPECT_FALSE(manager().renameFilter(L"House", L" House "));
    EXPECT_EQ(takeTexts("box"), Texts{"A layer filter of this name exists already."});
    EXPECT_TRUE(isStored("House"));
}

TEST_F(LayerFilterTest, RefusedNameLeavesTheOldOne) {
    EXPECT_FALSE(manager().renameFilter(L"House", L"  "));
    EXPECT_EQ(takeTexts("box").size(), 1U);
    EXPECT_TRUE(isStored("House"));
}

TEST_F(LayerFilterTest, FilterThatMayNotBeRenamedKeepsItsNameButIsShownAnew) {
    EXPECT_TRUE(manager().renameFilter(L"All Used Layers", L"Mine"));
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
    EXPECT_EQ(filter(L"Mine"), nullptr);
}

// Deleting

TEST_F(LayerFilterTest, DeletingTakesTheFilterOutOfTheDrawing) {
    EXPECT_TRUE(manager().deleteFilter(L"house"));
    EXPECT_FALSE(isStored("House"));
    EXPECT_EQ(filter(L"House"), nullptr);
}

TEST_F(LayerFilterTest, DeletingTheCurrentFilterMakesTheRootCurrentBeforeTheSave) {
    setDb("filters.current", "House");
    refresh();
    EXPECT_TRUE(manager().deleteFilter(L"House"));
    EXPECT_EQ(manager().current(), manager().root());
    EXPECT_EQ(db("filters.current"), stored("All", "name"));
}

TEST_F(LayerFilterTest, DeletingAFilterAroundTheCurrentOneLeavesNoneThatIsGone) {
    addGroup("Inner", {"Roof"}, "Top");
    setDb("filters.current", "Inner");
    refresh();
    EXPECT_TRUE(manager().deleteFilter(L"Top"));
    EXPECT_EQ(manager().current(), nullptr);
    EXPECT_EQ(db("filters.current"), stored("All", "name"));
}

TEST_F(LayerFilterTest, FilterThatMayNotBeDeletedStays) {
    EXPECT_TRUE(manager().deleteFilter(L"All Used Layers"));
    EXPECT_NE(filter(L"All Used Layers"), nullptr);
    EXPECT_TRUE(manager().deleteFilter(manager().root()->name()));
    EXPECT_NE(manager().root(), nullptr);
    EXPECT_FALSE(manager().deleteFilter(L"Gone"));
    EXPECT_EQ(takeCallLines({"VxLyLayerFilterManager::setFilters"}), Calls{});
}

TEST_F(LayerFilterTest, FilterThatCannotBeTakenOutStays) {
    fail("VxLyLayerFilter::removeNested", {}, 1);
    EXPECT_TRUE(manager().deleteFilter(L"House"));
    EXPECT_NE(filter(L"House"), nullptr);
    EXPECT_TRUE(isStored("House"));
}

}  // namespace
