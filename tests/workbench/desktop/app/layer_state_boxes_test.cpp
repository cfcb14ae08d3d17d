#include "workbench/desktop/app/layer_state_boxes.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"
#include "workbench/desktop/app/layer_state_manager_box.h"
#include "workbench/desktop/app/layer_state_save_box.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace workbench::desktop {

class LayerStateBoxesTest : public MainWindowTest {
protected:
    LayerStateDialogs& dialogs() { return editor().layerStateDialogs(); }
    /// Does something with the dialog that opens next.
    template <class Box, class Do>
    void onceThereIs(Do what) {
        QTimer::singleShot(0, &m_window, [what] {
            auto* const box = dynamic_cast<Box*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            what(*box);
        });
    }
};

TEST_F(LayerStateBoxesTest, AStateIsSavedAndRestoredByItsUser) {
    onceThereIs<LayerStateSaveBox>([](LayerStateSaveBox& box) {
        box.name().setText(QStringLiteral("Plan"));
        box.accept();
    });
    EXPECT_TRUE(dialogs().save());
    onceThereIs<LayerStateManagerBox>(
        [](LayerStateManagerBox& box) { box.restoreButton().click(); });
    EXPECT_TRUE(dialogs().manage());
    onceThereIs<LayerStateManagerBox>([](LayerStateManagerBox& box) { box.reject(); });
    EXPECT_FALSE(dialogs().manage());
}

TEST_F(LayerStateBoxesTest, WhileAScriptHasTheHostNobodyIsAsked) {
    m_window.stage().pump.hold();
    EXPECT_FALSE(dialogs().save());
    EXPECT_FALSE(dialogs().manage());
}

}  // namespace workbench::desktop
