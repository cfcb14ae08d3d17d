#include "layer/layer_texts.h"

#include <gtest/gtest.h>

namespace {

TEST(LayerTextsTest, KeysHaveTheirTexts) {
    EXPECT_EQ(CVxDaLyCtrlMgdResMgr::GetLocalResString(L"GroupFilter"), L"Group Filter");
    EXPECT_EQ(CVxDaLyCtrlMgdResMgr::GetLocalResString(L"FilterProxy_UnreconcileNew"),
              L"Unreconciled New Layers");
}

TEST(LayerTextsTest, KeysAreExactAndAnUnknownOneHasNoText) {
    for (const wchar_t* key : {L"", L"groupfilter", L"GroupFilter ", L"Filter"})
        EXPECT_EQ(CVxDaLyCtrlMgdResMgr::GetLocalResString(key), L"");
}

class PlaceHolderTest : public testing::TestWithParam<const wchar_t*> {};

TEST_P(PlaceHolderTest, StandsOnceInTheText) {
    const VxString text = CVxDaLyCtrlMgdResMgr::GetLocalResString(GetParam());
    const std::size_t place = text.find(L"{0}");
    ASSERT_NE(place, VxString::npos);
    EXPECT_EQ(text.find(L"{0}", place + 1), VxString::npos);
}

INSTANTIATE_TEST_SUITE_P(Texts, PlaceHolderTest,
                         testing::Values(L"FilterErrorInvalidChars",
                                         L"FilterErrorMoreThanMaxChars"));

}  // namespace
