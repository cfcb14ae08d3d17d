#include "workbench/desktop/app/desktop_commands.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"

#include <QApplication>

namespace workbench::desktop {

class DesktopCommandsTest : public MainWindowTest {};

TEST_F(DesktopCommandsTest, DocumentsAreMadeAndClosedByCommandsToo) {
    enter("NEW");
    QApplication::processEvents();
    EXPECT_EQ(editor().documents().active()->name(), L"Drawing1");
    enter("CLOSE");
    QApplication::processEvents();
    EXPECT_EQ(editor().documents().active()->name(), L"house.json");
}

}  // namespace workbench::desktop
