#pragma once

#include "tests/hostile/attack.h"

#include <hostapi/vxdashboard.h>
#include <hostapi/window.h>

namespace hostile {

/// Does an action now. One that finds nothing to act upon does nothing.
void perform(Action action);

/// The variable that is being written, for the length of a scope.
class WrittenVariable {
public:
    explicit WrittenVariable(const wchar_t* name);
    WrittenVariable(const WrittenVariable&) = delete;
    WrittenVariable& operator=(const WrittenVariable&) = delete;
    ~WrittenVariable();

private:
    const wchar_t* m_before;
};

/// Registers a listener with the dashboard, or takes it off; nothing without a dashboard.
void addOrRemoveListener(VxDaDashboardReactor& listener, bool add);

}  // namespace hostile
