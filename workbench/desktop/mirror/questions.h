#pragma once

class QWidget;

namespace workbench::desktop {

struct Stage;

/// Has the workbench's menus, message boxes and tooltips appear on the screen. An answer that a
/// script has queued still comes first, and while a script has the host nobody is asked.
class Questions {
public:
    /// `owner` is the window that boxes belong to.
    Questions(Stage& stage, QWidget& owner);
    Questions(const Questions&) = delete;
    Questions& operator=(const Questions&) = delete;
    ~Questions();

private:
    Stage& m_stage;
};

}  // namespace workbench::desktop
