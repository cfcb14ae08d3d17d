#pragma once

/// How a layer state is to be restored, `kRestore...` bits of the host: as the user has left the options
/// of the layer state dialog in the profile. An option that the profile doesn't have counts as set.
int readRestoreFlags();
