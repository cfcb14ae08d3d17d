#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/records/text_style.h"

namespace workbench {

TEST_F(EditorTest, TheTextStyleIsOneOfTheDrawings) {
    Document& document = newDocument();
    drawing::TextStyle title;
    title.name = "Title";
    document.data().add(title);
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Standard"));
    EXPECT_TRUE(write(L"TEXTSTYLE", "title"));
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Title"));
    EXPECT_FALSE(write(L"TEXTSTYLE", "None"));
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Title"));
}

TEST_F(EditorTest, TheTextSizeIsAPositiveReal) {
    newDocument();
    EXPECT_EQ(read(L"TEXTSIZE"), Value(2.5));
    EXPECT_TRUE(write(L"TEXTSIZE", 3));
    EXPECT_FALSE(write(L"TEXTSIZE", -1));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(3.0));
}

class TextHeightTest : public EditorTest {
protected:
    TextHeightTest() : m_document(newDocument()) {
        addStyle("Title", 5.0);
        addStyle("Note", 0.0);
    }
    void addStyle(const char* name, double height) {
        drawing::TextStyle style;
        style.name = name;
        style.height = height;
        m_document.data().add(style);
    }

    Document& m_document;
};

TEST_F(TextHeightTest, AStyleWithAHeightOfItsOwnTakesTheTextSizeAlong) {
    events();
    EXPECT_TRUE(write(L"TEXTSTYLE", "Title"));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(5.0));
    EXPECT_EQ(events(), (Lines{"will change TEXTSTYLE", "changed TEXTSTYLE", "will change TEXTSIZE",
                               "changed TEXTSIZE"}));
}

TEST_F(TextHeightTest, AStyleWithoutOneLeavesTheTextSize) {
    write(L"TEXTSTYLE", "Title");
    events();
    EXPECT_TRUE(write(L"TEXTSTYLE", "Note"));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(5.0));
    EXPECT_EQ(events(), (Lines{"will change TEXTSTYLE", "changed TEXTSTYLE"}));
}

TEST_F(TextHeightTest, ATextSizeThatIsRightAlreadyIsNotWritten) {
    write(L"TEXTSIZE", 5.0);
    events();
    write(L"TEXTSTYLE", "Title");
    EXPECT_EQ(events(), (Lines{"will change TEXTSTYLE", "changed TEXTSTYLE"}));
}

TEST_F(TextHeightTest, StyleAndSizeAreOneStepOfUndo) {
    write(L"TEXTSTYLE", "Title");
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(read(L"TEXTSTYLE"), Value("Standard"));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(2.5));
    EXPECT_TRUE(editor().redo());
    EXPECT_EQ(read(L"TEXTSIZE"), Value(5.0));
}

TEST_F(TextHeightTest, ADocumentThatGoesWithTheStyleTakesNoSize) {
    newDocument(L"B");
    editor().documents().activate(m_document);
    log().on("changed TEXTSTYLE", [this] { editor().documents().close(m_document); });
    events();
    EXPECT_TRUE(write(L"TEXTSTYLE", "Title"));
    EXPECT_EQ(events(), (Lines{"will change TEXTSTYLE", "changed TEXTSTYLE"}));
    EXPECT_EQ(read(L"TEXTSIZE"), Value(2.5));
}

}  // namespace workbench
