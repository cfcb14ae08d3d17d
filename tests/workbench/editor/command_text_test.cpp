#include "workbench/editor/command_text.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(CommandTextTest, CancelTextHasNothingElse) {
    EXPECT_TRUE(isCancelText(L"\3\3"));
    EXPECT_TRUE(isCancelText(L"\33"));
    EXPECT_FALSE(isCancelText(L""));
    EXPECT_FALSE(isCancelText(L"\3line"));
}

TEST(CommandTextTest, MacrosHaveMarksForCancelAndEnter) {
    EXPECT_EQ(textOfMacro(L"^C^c_line;1,2 "), L"\3\3_line\n1,2 ");
    EXPECT_EQ(textOfMacro(L"2^3^"), L"2^3^");
    EXPECT_EQ(textOfMacro(L""), L"");
}

TEST(CommandTextTest, AWordsMarksAreTakenApart) {
    const CommandWord plain = parseCommandWord(L"-layer");
    EXPECT_FALSE(plain.transparent);
    EXPECT_FALSE(plain.global);
    EXPECT_EQ(plain.name, L"-layer");
    const CommandWord marked = parseCommandWord(L"'_.ZOOM");
    EXPECT_TRUE(marked.transparent);
    EXPECT_TRUE(marked.global);
    EXPECT_EQ(marked.name, L"ZOOM");
    EXPECT_EQ(parseCommandWord(L"._CUI").name, L"CUI");
    EXPECT_EQ(parseCommandWord(L"").name, L"");
}

TEST(CommandTextTest, BlanksAndLineEndsEndAnswers) {
    CommandText text(L"_line 1,2\n\nlast");
    EXPECT_EQ(text.takeAnswer(false, false), L"_line");
    EXPECT_EQ(text.takeAnswer(false, false), L"1,2");
    EXPECT_EQ(text.takeAnswer(false, false), L"");
    EXPECT_EQ(text.takeAnswer(false, false), std::nullopt);
    EXPECT_EQ(text.takeAnswer(false, true), L"last");
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.takeAnswer(false, true), std::nullopt);
}

TEST(CommandTextTest, ABlankBelongsToAnAnswerThatTakesIt) {
    CommandText text(L"Ground floor\nnext");
    EXPECT_EQ(text.takeAnswer(true, false), L"Ground floor");
    EXPECT_EQ(text.takeAnswer(true, false), std::nullopt);
}

TEST(CommandTextTest, ACancelDropsTheAnswerBeforeIt) {
    CommandText text(L"lin\3line\n");
    EXPECT_FALSE(text.takeCancel());
    EXPECT_EQ(text.takeAnswer(false, true), std::nullopt);
    EXPECT_TRUE(text.beginsWithCancel());
    EXPECT_TRUE(text.takeCancel());
    EXPECT_EQ(text.takeAnswer(false, true), L"line");
}

}  // namespace workbench
