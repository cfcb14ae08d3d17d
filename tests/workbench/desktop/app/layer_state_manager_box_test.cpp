#include "workbench/desktop/app/layer_state_manager_box.h"

#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/app/layer_state_save_box.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

namespace workbench::desktop {

class LayerStateManagerBoxTest : public testing::Test {
protected:
    using Names = std::vector<std::wstring>;

    LayerStateManagerBoxTest() {
        m_states.save(L"Plan", L"as planned");
        m_states.save(L"View", L"");
        m_box = std::make_unique<LayerStateManagerBox>(m_states, m_owner);
        m_box->show();
    }
    QStringList shown() {
        QStringList texts;
        for (int i = 0; i < m_box->list().count(); ++i)
            texts.append(m_box->list().item(i)->text());
        return texts;
    }

    Workbench m_workbench{testOptions()};
    Document& m_document = m_workbench.editor().documents().create(L"A");
    LayerStateList m_states{m_document, {}};
    QWidget m_owner;
    std::unique_ptr<LayerStateManagerBox> m_box;
};

TEST_F(LayerStateManagerBoxTest, TheSelectedStateIsRestoredAndTheBoxCloses) {
    drawing::setByPath(m_document.data(), "layers.0.locked", true);
    EXPECT_EQ(m_box->description().text(), QStringLiteral("as planned"));
    m_box->list().setCurrentRow(1);
    EXPECT_EQ(m_box->description().text(), QString());
    m_box->restoreButton().click();
    EXPECT_EQ(m_box->result(), QDialog::Accepted);
    EXPECT_EQ(drawing::getByPath(m_document.data(), "layers.0.locked"), Value(false));
    EXPECT_EQ(drawing::getByPath(m_document.data(), "current.layerState"), Value("View"));
}

TEST_F(LayerStateManagerBoxTest, AStateIsRenamedInTheList) {
    m_box->list().item(0)->setText(QStringLiteral(" Old plan "));
    EXPECT_EQ(m_states.names(), (Names{L"Old plan", L"View"}));
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("Old plan"), QStringLiteral("View")}));
    m_box->list().item(0)->setText(QStringLiteral("view"));
    EXPECT_EQ(m_box->problem().text(), QStringLiteral("There is a layer state \"view\" already."));
    EXPECT_EQ(shown().first(), QStringLiteral("Old plan"));
}

TEST_F(LayerStateManagerBoxTest, WithTheLastStateTheButtonsGoOut) {
    m_box->deleteButton().click();
    EXPECT_EQ(m_states.names(), Names{L"View"});
    EXPECT_TRUE(m_box->restoreButton().isEnabled());
    m_box->deleteButton().click();
    EXPECT_EQ(shown(), QStringList());
    for (const QPushButton* button :
         {&m_box->restoreButton(), &m_box->renameButton(), &m_box->deleteButton()})
        EXPECT_FALSE(button->isEnabled());
    EXPECT_TRUE(m_box->newButton().isEnabled());
    EXPECT_TRUE(m_box->isVisible());
}

TEST_F(LayerStateManagerBoxTest, ANewStateIsAskedForAndSelected) {
    QTimer::singleShot(0, m_box.get(), [] {
        auto& box = dynamic_cast<LayerStateSaveBox&>(*QApplication::activeModalWidget());
        box.name().setText(QStringLiteral("New one"));
        box.accept();
    });
    m_box->newButton().click();
    EXPECT_EQ(m_states.names(), (Names{L"Plan", L"View", L"New one"}));
    EXPECT_EQ(m_box->list().currentItem()->text(), QStringLiteral("New one"));
}

}  // namespace workbench::desktop
