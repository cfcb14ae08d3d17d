#include "workbench/toolkit/label_editor.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

using Ends = std::vector<LabelEditor::End>;

class LabelEditorTest : public ToolkitTest {
protected:
    LabelEditorTest() {
        WindowCreation creation;
        creation.style = WS_CHILD | WS_VISIBLE;
        creation.parent = m_toolPanel->m_hWnd;
        windows().create(m_editor, std::move(creation));
        windows().setFocus(m_editor.m_hWnd);
    }
    void press(WPARAM key) { windows().input(nullptr, WM_KEYDOWN, key, 0); }

    Ends m_ends;
    LabelEditor m_editor{[this](LabelEditor::End end) { m_ends.push_back(end); }};
};

TEST_F(LabelEditorTest, EnterTakesAndEscapeDropsTheText) {
    press(VK_RETURN);
    press(VK_ESCAPE);
    EXPECT_EQ(m_ends, (Ends{LabelEditor::End::Take, LabelEditor::End::Drop}));
}

TEST_F(LabelEditorTest, OtherKeysEndNothing) {
    press(37);
    EXPECT_EQ(m_ends, Ends{});
}

TEST_F(LabelEditorTest, TheLossOfTheKeyboardTakesTheText) {
    frame().drawingView().SetFocus();
    EXPECT_EQ(m_ends, Ends{LabelEditor::End::Take});
}

}  // namespace
}  // namespace workbench
