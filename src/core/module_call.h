#pragma once

#include <memory>

/// A call of the host, or of another module, into this one, from its beginning to its return. Calls
/// stand within each other, because whatever the module calls may call it again.
///
/// What ends during a call goes out of service at once, but keeps its memory until the outermost call
/// returns: a function of it may be waiting further up for what it called. So after a call out the
/// members of `this` may still be touched; whether they are still in use is the object's to know.
class ModuleCall {
public:
    ModuleCall() noexcept { ++s_depth; }
    ModuleCall(const ModuleCall&) = delete;
    ModuleCall& operator=(const ModuleCall&) = delete;
    /// The end of the outermost call frees what `keepDuringCall` was given, in that order.
    ~ModuleCall() {
        // Before the count goes down, so that a call from a destructor isn't taken for the outermost.
        if (s_depth == 1 && s_isAnyEnding)
            freeEnding();
        --s_depth;
    }

private:
    friend void keepDuringCall(std::shared_ptr<void> object);
    static void freeEnding();

    static int s_depth;         // calls that run
    static bool s_isAnyEnding;  // something is kept
};

/// Keeps an object until the outermost call returns; it ends at once while no call runs.
void keepDuringCall(std::shared_ptr<void> object);

/// The same for an object with one owner. Null is ignored.
template <class Object>
void freeAfterCall(std::unique_ptr<Object> object) {
    if (object != nullptr)
        keepDuringCall(std::shared_ptr<Object>(std::move(object)));
}
