#include "text/text_height_list.h"

#include "tests/text/text_height_fixture.h"

namespace {

/// Test fixture: the lists of the test's own copy of the module, with documents that are only told apart.
class TextHeightListTest : public support::ControlBench {
protected:
    void SetUp() override {
        useNoMenu();
        newDocument(L"A");
        takeJournal();
    }
    void TearDown() override {
        dropAllTextHeights();
        ControlBench::TearDown();
    }
    static const VxApDocument* first() { return reinterpret_cast<const VxApDocument*>(8); }
    static const VxApDocument* other() { return reinterpret_cast<const VxApDocument*>(16); }
};

TEST_F(TextHeightListTest, WithoutADocumentNothingIsAdded) {
    EXPECT_EQ(currentTextHeights(), nullptr);
    EXPECT_FALSE(AddHeight(3.0));
    AddTextSize();
    FollowStyle();
    EXPECT_EQ(currentTextHeights(), nullptr);
}

TEST_F(TextHeightListTest, NewListIsEmptyAndLeavesTheHeightToTheVariable) {
    EXPECT_TRUE(selectTextHeights(first()));
    EXPECT_TRUE(currentTextHeights()->values.empty());
    EXPECT_EQ(currentTextHeights()->currentHeight, -1.0);
    EXPECT_TRUE(currentTextHeights()->variableHeight);
}

TEST_F(TextHeightListTest, ListsStayWithTheirDocuments) {
    selectTextHeights(first());
    AddHeight(3.0);
    EXPECT_TRUE(selectTextHeights(other()));
    EXPECT_TRUE(currentTextHeights()->values.empty());
    EXPECT_TRUE(selectTextHeights(first()));
    EXPECT_FALSE(selectTextHeights(first()));
    EXPECT_EQ(currentTextHeights()->values, std::vector<double>{3.0});
}

TEST_F(TextHeightListTest, DroppedListIsGone) {
    selectTextHeights(first());
    AddHeight(3.0);
    selectTextHeights(other());
    EXPECT_FALSE(dropTextHeights(first())) << "it was not the current one";
    EXPECT_NE(currentTextHeights(), nullptr);
    EXPECT_FALSE(dropTextHeights(first()));
    EXPECT_TRUE(dropTextHeights(other()));
    EXPECT_EQ(currentTextHeights(), nullptr);
    selectTextHeights(first());
    EXPECT_TRUE(currentTextHeights()->values.empty());
}

TEST_F(TextHeightListTest, HeightThatCannotBeWrittenIsAddedAgain) {
    selectTextHeights(first());
    AddHeight(3.0);
    fail("vxdbRToS", {}, 1);
    EXPECT_TRUE(AddHeight(3.0));
    EXPECT_EQ(currentTextHeights()->values, (std::vector<double>{3.0, 3.0}));
}

TEST_F(TextHeightListTest, OlderOfTwoHeightsThatLookTheSameStaysAndTheNewOneIsCurrent) {
    selectTextHeights(first());
    AddHeight(3.0);
    AddHeight(3.00001);
    EXPECT_EQ(currentTextHeights()->values, std::vector<double>{3.0});
    EXPECT_EQ(currentTextHeights()->currentHeight, 3.00001);
}

TEST_F(TextHeightListTest, StyleHeightTakesOverAndGivesBack) {
    selectTextHeights(first());
    setDb("textstyles.Standard.height", 7.0);
    FollowStyle();
    EXPECT_FALSE(currentTextHeights()->variableHeight);
    EXPECT_EQ(currentTextHeights()->values, std::vector<double>{7.0});
    setDb("textstyles.Standard.height", 0.0);
    FollowStyle();
    EXPECT_TRUE(currentTextHeights()->variableHeight);
    EXPECT_EQ(currentTextHeights()->currentHeight, 2.5);
}

TEST_F(TextHeightListTest, StyleThatCannotBeReadChangesNothing) {
    selectTextHeights(first());
    setDb("textstyles.Standard.height", 7.0);
    FollowStyle();
    fail("VxDbDatabase::getSymbolTable", {}, 1);
    setDb("textstyles.Standard.height", 0.0);
    FollowStyle();
    EXPECT_FALSE(currentTextHeights()->variableHeight);
}

TEST_F(TextHeightListTest, HeightIsWrittenInTheDrawingsUnits) {
    EXPECT_EQ(formatHeight(2.5), L"2.5000");
    fail("vxdbRToS", {}, 1);
    EXPECT_EQ(formatHeight(2.5), std::nullopt);
}

}  // namespace
