#pragma once

#include <QtCore/qnamespace.h>

class QKeyEvent;

namespace workbench::desktop {

struct Stage;

/// Gives a key to the window with the keyboard, as scripts do. Characters that nothing takes go to
/// the stage's taker; cut, copy and paste work in edit fields; the space bar is Enter on a tool and on
/// a panel's title. Behind Enter and Escape the keyboard goes back to the drawing, if the palettes
/// agree and no entry was refused.
void pressKey(Stage& stage, const QKeyEvent& event);
/// Whether a key is for the window with the keyboard, rather than a shortcut of the whole program.
bool isOwnKey(Stage& stage, const QKeyEvent& event);
/// Lets the workbench know which modifier keys are held.
void holdModifiers(Stage& stage, Qt::KeyboardModifiers modifiers);

}  // namespace workbench::desktop
