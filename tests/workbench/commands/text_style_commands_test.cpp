#include "workbench/commands/text_style_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/records/text_style.h"

#include <cmath>

namespace workbench {

using drawing::TextStyle;

class TextStyleCommandsTest : public EditorTest {
protected:
    TextStyleCommandsTest() : m_document(newDocument()) { events(); }

    /// The style of a name, which must be there.
    const TextStyle& style(const char* name) {
        const auto* found = m_document.data().look<TextStyle>(
            m_document.data().find(drawing::RecordKind::TextStyle, name));
        EXPECT_NE(found, nullptr) << name;
        static const TextStyle kNone;
        return found == nullptr ? kNone : *found;
    }
    void answer(const Value::Table& table) { editor().answers().queue("dialog", table); }

    Document& m_document;
};

TEST_F(TextStyleCommandsTest, ANewStyleBecomesTheCurrentOneAndItsHeightTheTextSize) {
    EXPECT_TRUE(run(L"-style\nBig Title\nromans\n5\n0.8\n15\n"));
    EXPECT_EQ(style("Big Title").font, "romans");
    EXPECT_EQ(style("Big Title").height, 5.0);
    EXPECT_EQ(style("Big Title").widthFactor, 0.8);
    EXPECT_NEAR(style("Big Title").oblique, 0.2618, 1e-4);
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Big Title"));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(5.0));
    EXPECT_EQ(events(), (Lines{"started -STYLE", "will change TEXTSTYLE", "changed TEXTSTYLE",
                               "will change TEXTSIZE", "changed TEXTSIZE", "ended -STYLE"}));
}

TEST_F(TextStyleCommandsTest, EnterKeepsWhatTheStyleHas) {
    run(L"-style\nA\nromans\n5\n0.8\n15\n");
    const TextStyle before = style("A");
    EXPECT_TRUE(run(L"-style\n\n\n\n\n\n"));
    EXPECT_EQ(style("A"), before);
}

TEST_F(TextStyleCommandsTest, TheCurrentStyleGetsAHeightWithoutTEXTSTYLEBeingWritten) {
    EXPECT_TRUE(run(L"-style\n\n\n7\n\n\n"));
    EXPECT_EQ(events(), (Lines{"started -STYLE", "will change TEXTSIZE", "changed TEXTSIZE",
                               "ended -STYLE"}));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(7.0));
    EXPECT_TRUE(run(L"-style\n\n\n0\n\n\n"));
    EXPECT_EQ(events(), (Lines{"started -STYLE", "ended -STYLE"}));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(7.0));
}

TEST_F(TextStyleCommandsTest, TheCommandIsOneStepOfUndo) {
    run(L"-style\nA\n\n5\n\n\n");
    EXPECT_TRUE(editor().undo());
    EXPECT_TRUE(m_document.data().find(drawing::RecordKind::TextStyle, "A").isNull());
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Standard"));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(2.5));
}

TEST_F(TextStyleCommandsTest, AnAnswerOutOfRangeIsAskedForAgain) {
    run(L"-style\nA\n\n-1\n");
    EXPECT_EQ(fields("output", "text"), Lines{R"("-1" can't be the Height of text.)"});
    EXPECT_EQ(processor().prompt(), L"Height of text <0>:");
    editor().type(L"tall\n3\n0\n");
    EXPECT_EQ(processor().prompt(), L"Width factor <1>:");
    editor().type(L"1\n90\n");
    EXPECT_EQ(processor().prompt(), L"Obliquing angle in degrees <0>:");
    editor().type(L"\n");
    EXPECT_FALSE(processor().isActive());
    EXPECT_EQ(style("A").height, 3.0);
}

TEST_F(TextStyleCommandsTest, ACancelChangesNothing) {
    run(L"-style\nA\nromans\n");
    editor().type(L"\33");
    EXPECT_TRUE(m_document.data().find(drawing::RecordKind::TextStyle, "A").isNull());
    EXPECT_EQ(events(), (Lines{"started -STYLE", "cancelled -STYLE"}));
}

TEST_F(TextStyleCommandsTest, AQuestionMarkListsTheStyles) {
    EXPECT_TRUE(run(L"-style\n?\n"));
    EXPECT_EQ(fields("output", "text"), (Lines{"Text styles:", "Standard"}));
    EXPECT_FALSE(processor().isActive());
}

TEST_F(TextStyleCommandsTest, TheDialogChangesTheCurrentStyleUnlessItNamesAnother) {
    answer({{"height", 4}});
    EXPECT_TRUE(run(L"style\n"));
    EXPECT_EQ(style("Standard").height, 4.0);
    EXPECT_EQ(fields("dialog", "name"), Lines{"Text Style"});
    EXPECT_EQ(events(),
              (Lines{"started STYLE", "will change TEXTSIZE", "changed TEXTSIZE", "ended STYLE"}));
    answer({{"name", "Thin"}, {"font", "romant"}, {"width", 0.5}, {"oblique", -10}});
    EXPECT_TRUE(run(L"style\n"));
    EXPECT_EQ(style("Thin").font, "romant");
    EXPECT_EQ(style("Thin").height, 0.0);
    EXPECT_EQ(style("Thin").widthFactor, 0.5);
    EXPECT_LT(style("Thin").oblique, 0.0);
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Thin"));
}

TEST_F(TextStyleCommandsTest, TheDialogIsCancelledWithoutAnAnswerAndFailsForOneOutOfRange) {
    run(L"style\n");
    answer({{"height", -1}});
    EXPECT_FALSE(run(L"style\n"));
    EXPECT_EQ(events(),
              (Lines{"started STYLE", "cancelled STYLE", "started STYLE", "failed STYLE"}));
    EXPECT_EQ(style("Standard").height, 0.0);
}

TEST_F(TextStyleCommandsTest, AStyleThatIsOpenElsewhereStaysAsItIs) {
    const drawing::Reading<TextStyle> elsewhere(
        m_document.data(), m_document.data().first(drawing::RecordKind::TextStyle));
    answer({{"height", 4}});
    EXPECT_FALSE(run(L"style\n"));
    EXPECT_EQ(style("Standard").height, 0.0);
    EXPECT_EQ(read(L"TEXTSIZE"), Value(2.5));
}

}  // namespace workbench
