#include "nav3d/view_entries.h"

#include "tests/nav3d/view_combo_fixture.h"

namespace {

using support::Sent;
using Calls = std::vector<std::string>;

// What stands in the list

TEST_F(ViewComboTest, PicturesAreLoadedSmallForThePresetsAlone) {
    takeJournal();
    tellOf(L"CVPORT");
    Calls expected;
    for (const char* view :
         {"TOP", "BOTTOM", "FRONT", "BACK", "LEFT", "RIGHT", "SW", "SE", "NE", "NW"}) {
        expected.push_back(
            std::string("QrUiLoadImageFromResource(\"VxDashboardRes.dll\", \"RCDATA_3DNAV_VIEW_") +
            view + "\", 16, -1)");
    }
    EXPECT_EQ(takeCallLines({"QrUiLoadImageFromResource"}), expected);
}

TEST_F(ViewComboTest, TextsAreThoseOfTheResources) {
    const UINT numbers[] = {1237, 0,    1211, 1212, 1213, 1214, 1215, 1216,
                            1217, 1218, 1220, 1219, 0,    1221, 1222};
    ASSERT_EQ(combo().GetCount(), static_cast<int>(std::size(numbers)));
    for (int i = 0; i < combo().GetCount(); ++i) {
        const QRUI_COMBO_CTRL_ITEM& entry = *combo().GetItem(i);
        EXPECT_EQ(entry.separator, numbers[i] == 0 ? 1 : 0);
        EXPECT_EQ(entry.text, numbers[i] == 0 ? L"" : stringOf(numbers[i]));
    }
}

TEST_F(ViewComboTest, DrawingsViewsAreReadFromTheStartWithoutErasedOnesAndClosedAgain) {
    addView("Attic");
    addView("Garden");
    takeJournal();
    tellOf(L"CVPORT");
    const std::string read = "VxDbViewTableIterator::getRecord(0)";
    EXPECT_EQ(takeCallLines({"VxDbDatabase::getSymbolTable", "VxDbViewTable::newIterator",
                             "VxDbViewTableIterator::getRecord", "VxDbSymbolTableRecord::getName",
                             "VxDbObject::close"}),
              (Calls{"VxDbDatabase::getSymbolTable(0)", "VxDbViewTable::newIterator(true, true)",
                     "VxDbObject::close()", read, "VxDbSymbolTableRecord::getName()",
                     "VxDbObject::close()", read, "VxDbSymbolTableRecord::getName()",
                     "VxDbObject::close()"}));
}

class UnreadableViewTest : public ViewComboTest, public testing::WithParamInterface<const char*> {};

TEST_P(UnreadableViewTest, IsLeftOutAndTheOthersStay) {
    addView("Attic");
    addView("Garden");
    fail(GetParam(), {}, 1);
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_NE(isListed(L"Attic"), isListed(L"Garden"));
    const Calls made = takeCalls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "VxDbObject::close"),
              GetParam() == std::string("VxDbSymbolTableRecord::getName") ? 3 : 2);
}

INSTANTIATE_TEST_SUITE_P(Calls, UnreadableViewTest,
                         testing::Values("VxDbSymbolTableIterator::getRecordId",
                                         "VxDbViewTableIterator::getRecord",
                                         "VxDbSymbolTableRecord::getName"));

TEST_F(ViewComboTest, TableThatCannotBeWalkedIsClosedAndGivesNoNamedViews) {
    addView("Garden");
    fail("VxDbViewTable::newIterator");
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
    EXPECT_EQ(takeCount("VxDbObject::close"), 1U);
}

TEST_F(ViewComboTest, WithoutADatabaseThereAreNoNamedViews) {
    addView("Garden");
    fail("vxdbHostApplicationServices");
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
}

TEST_F(ViewComboTest, DrawingWithoutNamedViewsShowsTheCurrentViewAndThePresets) {
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
    EXPECT_EQ(selected(), L"Current View");
}

TEST_F(ViewComboTest, NamedViewsStandInTheUsersOrder) {
    addView("garden");
    addView("Attic");
    addView("Élan");
    rebuild();
    EXPECT_EQ(entries(),
              withPresets({L"Current View", L"-", L"Attic", L"\u00c9lan", L"garden", L"-"}));
}

TEST_F(ViewComboTest, UnopenableTableGivesAListWithoutNamedViews) {
    addView("Garden");
    fail("VxDbDatabase::getSymbolTable");
    rebuild();
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
}

TEST_F(ViewComboTest, PresetsHaveTheirPictures) {
    for (int i = 0; i < combo().GetCount(); ++i) {
        const QRUI_COMBO_CTRL_ITEM* entry = combo().GetItem(i);
        const bool preset = i >= 2 && i < 12;
        EXPECT_EQ(entry->image != nullptr, preset) << i;
    }
}

// What is sent

struct PresetCase {
    const wchar_t* entry;
    const char* command;
};
class PresetTest : public ViewComboTest, public testing::WithParamInterface<PresetCase> {};

TEST_P(PresetTest, SendsItsTransparentCommand) {
    choose(GetParam().entry);
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{GetParam().command, "line"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Entries, PresetTest,
    testing::Values(PresetCase{L"Top", "'_-view _top "}, PresetCase{L"Bottom", "'_-view _bottom "},
                    PresetCase{L"Front", "'_-view _front "}, PresetCase{L"Back", "'_-view _back "},
                    PresetCase{L"Left", "'_-view _left "}, PresetCase{L"Right", "'_-view _right "},
                    PresetCase{L"SW Isometric", "'_-view _swiso "},
                    PresetCase{L"SE Isometric", "'_-view _seiso "},
                    PresetCase{L"NE Isometric", "'_-view _neiso "},
                    PresetCase{L"NW Isometric", "'_-view _nwiso "}));

TEST_F(ViewComboTest, NamedViewIsSentAsItStandsWithANewLine) {
    addView("South east corner");
    choose(L"South east corner");
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'_-view _restore South east corner\n", "line"}}));
    EXPECT_EQ(selected(), L"South east corner");
}

TEST_F(ViewComboTest, ViewThatCannotBeNamedSendsNothing) {
    addView("Garden");
    rebuild();
    select(L"Garden");
    fail("VxDbSymbolTableRecord::getName");
    takeJournal();
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(takeCount("VxDbObject::close"), 1U);
}

TEST_F(ViewComboTest, ViewThatCannotBeOpenedSendsNothing) {
    addView("Garden");
    notify(kDropDown);
    combo().SetCurSel(2);
    ASSERT_EQ(selected(), L"Garden");
    fail("vxdbOpenObject");
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
    bench().faults().unfail("vxdbOpenObject");
}

TEST_F(ViewComboTest, ManagerIsSentBehindTwoCancels) {
    bench().answers().queue("dialog", workbench::Value());
    choose(L"View Manager...");
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"\x03\x03_view ", "line"}}));
}

}  // namespace
