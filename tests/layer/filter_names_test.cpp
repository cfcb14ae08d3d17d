#include "tests/layer/layer_filter_fixture.h"

namespace {

struct NameCase {
    std::wstring name;
    bool longNames;
    int status;
    const char* box;  // empty: nothing is said
};

const char* const kTooFew = "A layer filter needs a name.";
const char* const kTaken = "A layer filter of this name exists already.";
const char* const kBadLong =
    "The name of a layer filter can't contain these characters: < > / \\ \" : ; ? * | , = `";
const char* const kBadShort =
    "The name of a layer filter can't contain these characters: all but letters, digits, blanks, "
    "$, "
    "_ and -";
const char* const kTooLong = "The name of a layer filter can't be longer than 255 characters.";
const char* const kTooLongShort = "The name of a layer filter can't be longer than 31 characters.";

class FilterNameTest : public LayerFilterTest, public testing::WithParamInterface<NameCase> {};

TEST_P(FilterNameTest, IsTakenOrRefusedWithItsReason) {
    set(L"EXTNAMES", GetParam().longNames ? 1 : 0);
    takeJournal();
    EXPECT_EQ(manager().validateFilterName(GetParam().name), GetParam().status);
    const std::string box = GetParam().box;
    EXPECT_EQ(takeTexts("box"), box.empty() ? Texts{} : Texts{box});
}

INSTANTIATE_TEST_SUITE_P(
    Names, FilterNameTest,
    testing::Values(NameCase{L"Home", true, 0, ""}, NameCase{L" Home ", true, 0, ""},
                    NameCase{L"My home", true, 0, ""}, NameCase{L"\u0414\u043e\u043c", true, 0, ""},
                    NameCase{L"", true, 352, kTooFew}, NameCase{L" \t ", true, 352, kTooFew},
                    NameCase{L"house", true, 352, kTaken}, NameCase{L" House ", true, 352, kTaken},
                    NameCase{std::wstring(255, L'x'), true, 0, ""},
                    NameCase{std::wstring(256, L'x'), true, 160, kTooLong},
                    NameCase{L" " + std::wstring(255, L'x') + L" ", true, 0, ""},
                    NameCase{std::wstring(31, L'x'), false, 0, ""},
                    NameCase{std::wstring(32, L'x'), false, 160, kTooLongShort},
                    NameCase{L"My home", false, 0, ""}, NameCase{L"a+b", false, 3, kBadShort},
                    NameCase{L"a+b", true, 0, ""}));

class ForbiddenCharacterTest : public LayerFilterTest,
                               public testing::WithParamInterface<wchar_t> {};

TEST_P(ForbiddenCharacterTest, IsRefused) {
    EXPECT_EQ(manager().validateFilterName(std::wstring(L"a") + GetParam() + L"b"), 3);
    EXPECT_EQ(takeTexts("box"), Texts{kBadLong});
}

INSTANTIATE_TEST_SUITE_P(Characters, ForbiddenCharacterTest,
                         testing::Values(L'<', L'>', L'/', L'\\', L'"', L':', L';', L'?', L'*',
                                         L'|', L',', L'=', L'`'));

TEST_F(LayerFilterTest, NameIsCheckedWithTheDocumentsCompatibilityMode) {
    manager().validateFilterName(L" Home ");
    EXPECT_EQ(takeCallLines({"VxDbSymbolUtilities::compatibilityMode",
                             "VxDbSymbolUtilities::validateSymbolName", "vxdbGetExtnames"}),
              (Calls{"VxDbSymbolUtilities::compatibilityMode(object)",
                     "VxDbSymbolUtilities::validateSymbolName(\"Home\", true, false, false)",
                     "vxdbGetExtnames(object)"}));
}

TEST_F(LayerFilterTest, NameCheckWithoutADocumentSaysNothing) {
    closeDocument(L"A");
    EXPECT_EQ(manager().validateFilterName(L"Home"), 124);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(LayerFilterTest, NameCheckWithoutTheDrawingsRuleGivesTheStatusAndSaysNothing) {
    fail("vxdbGetExtnames", {}, 1);
    EXPECT_EQ(manager().validateFilterName(L"a?b"), 3);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

TEST_F(LayerFilterTest, OtherStatusesRefuseANameInSilence) {
    fail("VxDbSymbolUtilities::validateSymbolName", 77, 1);
    EXPECT_EQ(manager().validateFilterName(L"Home"), 77);
    EXPECT_EQ(takeTexts("box"), Texts{});
}

}  // namespace
