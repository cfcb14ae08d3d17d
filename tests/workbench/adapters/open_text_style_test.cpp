#include "workbench/adapters/open_text_style.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenTextStyleTest : public AdaptersTest {};

TEST_F(OpenTextStyleTest, TellsItsNameAndItsHeight) {
    drawing::TextStyle notes;
    notes.name = "Notes";
    notes.height = 2.5;
    auto* style = openAs<VxDbTextStyleTableRecord>(data().add(notes).id);
    ASSERT_NE(style, nullptr);
    VxString name;
    EXPECT_EQ(style->getName(name), Zorq::eOk);
    EXPECT_EQ(name, L"Notes");
    EXPECT_EQ(style->textSize(), 2.5);
    m_bench.faults().fail("VxDbTextStyleTableRecord::textSize");
    EXPECT_EQ(style->textSize(), 0.0);
    style->close();
}

}  // namespace workbench
