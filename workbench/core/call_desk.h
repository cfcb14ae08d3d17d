#pragma once

#include "workbench/core/faults.h"
#include "workbench/core/journal.h"

namespace workbench {

/// Where host calls go: to the journal that notes them and the faults that come to them. The
/// functions that the product calls have no object to turn to, so the desk that was opened last
/// serves them; with its end the one before does again.
class CallDesk {
public:
    /// Both must outlive the desk.
    CallDesk(Journal& journal, Faults& faults);
    CallDesk(const CallDesk&) = delete;
    CallDesk& operator=(const CallDesk&) = delete;
    ~CallDesk();

    /// The desk that serves now. Throws std::logic_error if there is none.
    static CallDesk& current();

    Journal& journal() const { return m_journal; }
    Faults& faults() const { return m_faults; }

private:
    Journal& m_journal;
    Faults& m_faults;
    CallDesk* m_before;  // not owned; null: there was none
};

}  // namespace workbench
