#include "workbench/desktop/mirror/open_menu.h"

#include <QApplication>
#include <QMenu>

namespace workbench::desktop {

QWidget* menuOpenOn(const QWidget& owner) {
    QWidget* menu = QApplication::activePopupWidget();
    while (menu != nullptr && qobject_cast<QMenu*>(menu->parentWidget()) != nullptr)
        menu = menu->parentWidget();
    return menu != nullptr && menu->parentWidget() == &owner ? menu : nullptr;
}

}  // namespace workbench::desktop
