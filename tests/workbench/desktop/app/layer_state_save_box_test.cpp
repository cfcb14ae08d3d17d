#include "workbench/desktop/app/layer_state_save_box.h"

#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/look/text.h"
#include "workbench/editor/editor.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>

namespace workbench::desktop {

class LayerStateSaveBoxTest : public testing::Test {
protected:
    void enter(const char* name) {
        m_box.name().setText(QString::fromLatin1(name));
        pressKey(m_box.name(), Qt::Key_Return);
    }

    Workbench m_workbench{testOptions()};
    LayerStateList m_states{m_workbench.editor().documents().create(L"A"), {}};
    QWidget m_owner;
    LayerStateSaveBox m_box{m_states, m_owner};
};

TEST_F(LayerStateSaveBoxTest, ANameAndADescriptionAreSaved) {
    m_box.show();
    m_box.description().setText(QStringLiteral("as planned"));
    enter(" Plan ");
    EXPECT_EQ(m_box.result(), QDialog::Accepted);
    EXPECT_EQ(m_states.descriptionOf(L"Plan"), L"as planned");
}

TEST_F(LayerStateSaveBoxTest, ANameThatCannotBeTakenIsSaidAndTheBoxStays) {
    m_states.save(L"Plan", L"");
    m_box.show();
    enter("plan");
    EXPECT_TRUE(m_box.isVisible());
    EXPECT_EQ(m_box.problem().text(), QStringLiteral("There is a layer state \"plan\" already."));
    enter("");
    EXPECT_EQ(m_box.problem().text(), QStringLiteral("A layer state has a name."));
    EXPECT_EQ(m_states.names().size(), 1U);
}

TEST_F(LayerStateSaveBoxTest, EscapeSavesNothing) {
    m_box.show();
    m_box.name().setText(QStringLiteral("Plan"));
    pressKey(m_box, Qt::Key_Escape);
    EXPECT_FALSE(m_box.isVisible());
    EXPECT_TRUE(m_states.names().empty());
}

}  // namespace workbench::desktop
