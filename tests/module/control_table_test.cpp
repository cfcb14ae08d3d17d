#include "module/control_table.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class ControlTableTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(ControlTableTest, GivesItsOwnSpellingOfAName) {
    const ControlTableRow* row = findControlRow(GetParam());
    ASSERT_NE(row, nullptr);
    EXPECT_STREQ(row->name, L"LayerLockTransparencySliderControl");
    EXPECT_NE(row->factory, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Spellings, ControlTableTest,
                         testing::Values(L"LayerLockTransparencySliderControl",
                                         L"layerlocktransparencyslidercontrol",
                                         L"LAYERLOCKTRANSPARENCYSLIDERCONTROL"));

class UnknownControlTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(UnknownControlTest, HasNoRow) {
    EXPECT_EQ(findControlRow(GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Names, UnknownControlTest,
                         testing::Values(L"", L"LayerLockTransparencySlider",
                                         L"LayerLockTransparencySliderControl ",
                                         L"CVxDaLockedLayerTransparencySliderCtrl"));

}  // namespace
