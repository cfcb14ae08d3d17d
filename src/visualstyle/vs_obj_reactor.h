#pragma once

/// Keeps the visual-style tools in line with the current viewport.
class CVxDaVSObjReactor {
public:
    /// Greys the family while paper space is active, and frees it again afterwards.
    void update();

private:
    void lockTools(bool lock);

    bool m_wasLocked = false;  // set by the first lock and never cleared
};
