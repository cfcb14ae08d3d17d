#pragma once

#include <functional>
#include <memory>

namespace workbench {

/// A stretch of the host's work in which code of a module may run, which may do anything: close the
/// document that is worked on, unload the module that is being called. What goes that way is out of
/// service at once, but what the code around may still stand on ends with the outermost turn.
class Turn {
public:
    Turn() { ++s_depth; }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() {
        // The turn is still under way: what ends now may start turns of its own.
        if (s_depth == 1 && s_isWorkWaiting)
            catchUp();
        --s_depth;
    }

    /// Whether a turn is under way.
    static bool isUnderWay() { return s_depth > 0; }
    /// Does something when the outermost turn ends, after what was put off before; at once outside
    /// of all turns. It must not throw.
    static void putOff(std::function<void()> work);
    /// Keeps an object until the outermost turn ends; outside of all turns it ends at once.
    static void keep(std::shared_ptr<void> object);

private:
    static void catchUp();

    static int s_depth;           // turns that are under way
    static bool s_isWorkWaiting;  // something was put off
};

}  // namespace workbench
