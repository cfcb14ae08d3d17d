#include "workbench/desktop/panes/status_fields.h"

#include "tests/workbench/loader/test_options.h"
#include "workbench/editor/editor.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

class StatusFieldsTest : public testing::Test {
protected:
    std::string field(const char* name) {
        m_fields.refresh(m_workbench);
        for (const QLabel* label : m_fields.findChildren<QLabel*>()) {
            if (label->accessibleName() == QLatin1String(name))
                return label->text().toStdString();
        }
        return "no such field";
    }

    Workbench m_workbench{testOptions()};
    StatusFields m_fields;
};

TEST_F(StatusFieldsTest, WithoutADocumentTheySaySo) {
    EXPECT_EQ(field("Document"), "No drawing");
    EXPECT_EQ(field("Space"), "");
    EXPECT_EQ(field("Running command"), "");
}

TEST_F(StatusFieldsTest, TellDocumentSpaceCommandAndCleanScreen) {
    Editor& editor = m_workbench.editor();
    editor.documents().create(L"Plan");
    EXPECT_EQ(field("Document"), "Plan");
    EXPECT_EQ(field("Space"), "Model");
    editor.set(L"TILEMODE", 0);
    EXPECT_EQ(field("Space"), "Layout1");
    editor.beginCommand(L"LINE");
    EXPECT_EQ(field("Running command"), "LINE");
    editor.finishCommand(CommandState::Ended);
    EXPECT_EQ(field("Running command"), "");
    editor.set(L"CleanScreenState", 1);
    EXPECT_EQ(field("Clean screen"), "Clean screen");
}

}  // namespace
}  // namespace workbench::desktop
