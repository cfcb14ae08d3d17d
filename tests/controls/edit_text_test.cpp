#include "controls/edit_text.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/input_edit.h>

#include <string>
#include <vector>

namespace {

class EditTextTest : public PaletteTest {
protected:
    void SetUp() override {
        show();
        ASSERT_TRUE(
            m_field.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 16}, &dashboard(), kFieldId, 0));
        // Messages are noted for windows that have a name.
        bench().windows().setName(m_field.m_hWnd, "Field");
        m_field.SetWindowText(L"12.50");
        bench().windows().setFocus(nullptr);
        forget();
    }
    void TearDown() override {
        m_field.DestroyWindow();
        PaletteTest::TearDown();
    }
    /// What the field was told, by call or message.
    std::vector<std::string> told() {
        std::vector<std::string> all;
        for (const workbench::JournalRecord& record : bench().journal().take()) {
            if (record.kind == "call") {
                all.push_back(record.field("name").asString());
            } else if (record.kind == "message") {
                all.push_back(std::to_string(record.field("number").asInteger()) + ": " +
                              std::to_string(record.field("wparam").asInteger()) + " to " +
                              std::to_string(record.field("lparam").asInteger()));
            }
        }
        return all;
    }

    static constexpr UINT kFieldId = 42;
    CQrUiInputEditCtrl m_field;
};

using Steps = std::vector<std::string>;

TEST_F(EditTextTest, SelectionIsOfTheWholeTextAndScrolledIntoView) {
    SelectAllEditText(m_field);
    EXPECT_EQ(told(), (Steps{"177: 0 to -1", "183: 0 to 0"}));
}

TEST_F(EditTextTest, FieldGivenBackHasItsTextSelectedAndThenTheFocus) {
    giveBackToCorrect(m_field, L"10.00");
    EXPECT_EQ(told(), (Steps{"CWnd::SetWindowText", "177: 0 to -1", "183: 0 to 0", "CWnd::SetFocus",
                             "7: 0 to 0"}));
    EXPECT_EQ(m_field.GetWindowText(), L"10.00");
    EXPECT_EQ(bench().windows().focus(), m_field.m_hWnd);
}

}  // namespace
