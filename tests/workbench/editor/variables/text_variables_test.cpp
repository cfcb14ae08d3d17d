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

}  // namespace workbench
