#pragma once

#include "workbench/toolkit/bar_storage.h"

#include <hostapi/qrui18/palette_set.h>

namespace workbench {

class Toolkit;

/// The places of palette sets, as they are kept from one run to the next. The sets read and write
/// them themselves (`CQrUiPaletteSet::Load`, `CQrUiPaletteSet::Save`).
class KeptBars {
public:
    /// A part of the toolkit, of which it asks only later.
    explicit KeptBars(Toolkit& toolkit) : m_toolkit(toolkit) {}
    KeptBars(const KeptBars&) = delete;
    KeptBars& operator=(const KeptBars&) = delete;

    /// Where they are kept; null: nowhere. Must live until another one is set.
    void setStorage(BarStorage* storage) { m_storage = storage; }

    /// Has a set read its place, if one is kept for its tool; one that it can't take is complained of.
    /// The set may end meanwhile.
    void load(CQrUiPaletteSet& set);
    /// Forgets all places of this run, and has all sets read theirs.
    void loadAll();
    /// Has all sets write their places. For a tool whose set has gone the last one is written.
    void saveAll();

private:
    Toolkit& m_toolkit;
    BarStorage* m_storage = nullptr;  // not owned
};

}  // namespace workbench
