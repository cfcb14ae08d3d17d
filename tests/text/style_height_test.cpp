#include "text/style_height.h"

#include "tests/text/text_height_fixture.h"

namespace {

/// Test fixture: a drawing whose current text style is 3 high.
class StyleHeightTest : public TextHeightTest {
protected:
    void SetUp() override {
        TextHeightTest::SetUp();
        addStyle("Titles", 3.0);
        set(L"TEXTSTYLE", "Titles");
        takeJournal();
    }
};

TEST_F(StyleHeightTest, IsThatOfTheCurrentStyle) {
    EXPECT_EQ(GetStyleHeight(), 3.0);
    set(L"TEXTSTYLE", "Standard");
    EXPECT_EQ(GetStyleHeight(), 0.0);
}

TEST_F(StyleHeightTest, TableAndRecordsAreClosedAgain) {
    GetStyleHeight();
    EXPECT_EQ(bench().editor().documents().current()->openObjects().count(), 0U);
}

TEST_F(StyleHeightTest, StyleThatCannotBeReadIsSkipped) {
    bench().faults().fail("vxdbOpenObject", 1, 1);
    EXPECT_EQ(GetStyleHeight(), 3.0) << "it is the second one";
    bench().faults().fail("VxDbSymbolTableIterator::getRecordId", 1, 1);
    EXPECT_EQ(GetStyleHeight(), 3.0);
    bench().faults().fail("VxDbSymbolTableRecord::getName", 1, 1);
    EXPECT_EQ(GetStyleHeight(), 3.0);
}

class StyleHeightFailureTest : public StyleHeightTest,
                               public testing::WithParamInterface<const char*> {};

TEST_P(StyleHeightFailureTest, GivesNoHeight) {
    fail(GetParam(), {}, 1);
    EXPECT_EQ(GetStyleHeight(), -1.0);
    EXPECT_EQ(GetStyleHeight(), 3.0);
}

INSTANTIATE_TEST_SUITE_P(Steps, StyleHeightFailureTest,
                         testing::Values("vxedGetVar", "VxDbDatabase::getSymbolTable",
                                         "VxDbTextStyleTable::newIterator"));

TEST_F(StyleHeightTest, WithoutADatabaseThereIsNone) {
    closeDocument(L"A");
    EXPECT_EQ(GetStyleHeight(), -1.0);
}

}  // namespace
