#pragma once

#include <QTabBar>

namespace workbench::desktop {

struct Stage;

/// Tabs for model space and the layouts of the drawing in front, below it. A click brings one to the
/// front by the host's command.
class SpaceTabs final : public QTabBar {
public:
    explicit SpaceTabs(Stage& stage);

    /// Takes over the layouts and which of them is on show; hides while no drawing is open.
    void refresh();

private:
    void choose(int index);

    Stage& m_stage;
    bool m_refreshing = false;  // a tab's change is not the user's
};

}  // namespace workbench::desktop
