#pragma once

namespace workbench::desktop {

/// Has what Qt complains of reach standard error as one clear line each, and end the program with the
/// code for wrong usage where it can't go on: no screen, a screen that goes away, no plug-in for it.
void installComplaints();
/// The first window can be opened: from now on warnings are printed as they come. Those before belong
/// to the failure that follows them.
void noteStarted();

}  // namespace workbench::desktop
