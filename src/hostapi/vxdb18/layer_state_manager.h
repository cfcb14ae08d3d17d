#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/vxdb18/database.h>

/// What is done beyond restoring a layer state.
constexpr int kRestoreTurnsNewLayersOff =
    1;                                  ///< Layers that the state doesn't know are turned off.
constexpr int kRestoreAsOverrides = 4;  ///< In a viewport of a layout: as what holds in it alone.

/// The saved layer states of a drawing.
class VXHOST VxDbLayerStateManager {
public:
    explicit VxDbLayerStateManager(VxDbDatabase* database) : m_database(database) {}

    /// The names of the states in the host's order; hidden ones and those of referenced drawings are
    /// left out unless asked for. Returns 0 on success, also without a state.
    Zorq::ErrorStatus getLayerStateNames(CStringArray& names, bool withHidden,
                                         bool withReferenced) const;
    /// The state that was restored last, whether or not the layers still are as it says. Returns 0 on
    /// success; another status if none was.
    Zorq::ErrorStatus getLastRestoredLayerState(VxString& name) const;
    /// Whether the layers are as the state says; what it says of one viewport is compared with the
    /// viewport of this ID, if that isn't null.
    bool compareLayerStateToDb(const wchar_t* name, VxDbObjectId viewport) const;
    /// Brings the layers back as the state says. `flags` are `kRestore...` bits; `mask` may leave
    /// properties out, null for all. Returns 0 on success; 3, 22 or 374 if there is no such state.
    Zorq::ErrorStatus restoreLayerState(const wchar_t* name, VxDbObjectId viewport, int flags,
                                        const int* mask);

private:
    VxDbDatabase* m_database;  // not owned; null: there are no states
};
