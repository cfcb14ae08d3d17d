#pragma once

#include <QString>

namespace workbench {
class Toolkit;
struct Window;
}  // namespace workbench

namespace workbench::desktop {

/// What a window is called by those who can't see it.
struct WindowNames {
    QString name;         ///< Never empty for a part that a user can reach.
    QString description;  ///< The tooltip, where it says more than the name.
};
WindowNames namesOf(Toolkit& toolkit, const Window& window);
/// What a custom control is called as a whole: as its picture or its tooltip says, or what it lists.
QString nameOfWhole(const Toolkit& toolkit, const Window& control);

}  // namespace workbench::desktop
