#pragma once

#include <QtCore/qnamespace.h>

class QKeyEvent;

namespace workbench::desktop {

struct Stage;

/// Gives a key to the window with the keyboard, as scripts do. Characters that nothing takes go to
/// the stage's taker; cut, copy and paste work in edit fields.
void pressKey(Stage& stage, const QKeyEvent& event);
/// Lets the workbench know which modifier keys are held.
void holdModifiers(Stage& stage, Qt::KeyboardModifiers modifiers);

}  // namespace workbench::desktop
