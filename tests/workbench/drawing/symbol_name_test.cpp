#include "workbench/drawing/symbol_name.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench::drawing {
namespace {

using Problem = SymbolNameProblem;

struct NameCase {
    const wchar_t* name;
    SymbolNameRules rules;
    Problem problem;
};

constexpr SymbolNameRules kLong{};
constexpr SymbolNameRules kShort{.isShort = true, .blanks = false};
constexpr SymbolNameRules kShortWithBlanks{.isShort = true};
constexpr SymbolNameRules kReferenced{.verticalBar = true};

class SymbolNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(SymbolNameTest, HasTheProblem) {
    EXPECT_EQ(problemOfSymbolName(GetParam().name, GetParam().rules), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    Names, SymbolNameTest,
    testing::Values(NameCase{L"Walls", kLong, Problem::None},
                    NameCase{L"Walls & doors (old)", kLong, Problem::None},
                    NameCase{L"W\u00e4nde", kShort, Problem::None},
                    NameCase{L"A$1_b-2", kShort, Problem::None},
                    NameCase{L"a b", kShortWithBlanks, Problem::None},
                    NameCase{L"a b", kShort, Problem::ForbiddenCharacter},
                    NameCase{L"a&b", kShortWithBlanks, Problem::ForbiddenCharacter},
                    NameCase{L"a\u20acb", kShort, Problem::ForbiddenCharacter},
                    NameCase{L"", kLong, Problem::Missing}, NameCase{L" ", kLong, Problem::Missing},
                    NameCase{L" a", kLong, Problem::Missing},
                    NameCase{L"a ", kShortWithBlanks, Problem::Missing},
                    NameCase{L"House|Walls", kLong, Problem::ForbiddenCharacter},
                    NameCase{L"House|Walls", kReferenced, Problem::None},
                    NameCase{L"a\tb", kLong, Problem::ForbiddenCharacter},
                    NameCase{L"a\x7f", kLong, Problem::ForbiddenCharacter}));

class ForbiddenCharacterTest : public testing::TestWithParam<wchar_t> {};

TEST_P(ForbiddenCharacterTest, MakesANameAProblem) {
    const std::wstring name = {L'a', GetParam(), L'b'};
    EXPECT_EQ(problemOfSymbolName(name, kLong), Problem::ForbiddenCharacter);
    EXPECT_EQ(problemOfSymbolName(name, kShortWithBlanks), Problem::ForbiddenCharacter);
}

INSTANTIATE_TEST_SUITE_P(All, ForbiddenCharacterTest,
                         testing::Values(L'<', L'>', L'/', L'\\', L'"', L':', L';', L'?', L'*',
                                         L'|', L',', L'=', L'`'));

TEST(SymbolNameLengthTest, TheLastCharacterThatFitsIsThe255thOrThe31st) {
    EXPECT_EQ(problemOfSymbolName(std::wstring(255, L'a'), kLong), Problem::None);
    EXPECT_EQ(problemOfSymbolName(std::wstring(256, L'a'), kLong), Problem::TooLong);
    EXPECT_EQ(problemOfSymbolName(std::wstring(31, L'a'), kShort), Problem::None);
    EXPECT_EQ(problemOfSymbolName(std::wstring(32, L'a'), kShort), Problem::TooLong);
    EXPECT_EQ(problemOfSymbolName(std::wstring(300, L'*'), kLong), Problem::ForbiddenCharacter);
}

}  // namespace
}  // namespace workbench::drawing
