#pragma once

class QWidget;

namespace workbench::desktop {

/// The outermost menu that is open on a widget, of which it is the owner; null for none.
QWidget* menuOpenOn(const QWidget& owner);

}  // namespace workbench::desktop
