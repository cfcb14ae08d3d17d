#include "workbench/toolkit/kept_bars.h"

#include "workbench/base/turn.h"
#include "workbench/toolkit/held_node.h"
#include "workbench/toolkit/toolkit.h"

#include <algorithm>
#include <vector>

namespace workbench {

namespace {

/// Calls a function with each palette set. A set may go while it runs for another one.
template <class Function>
void forEachSet(MainFrame& frame, Function function) {
    const Turn turn;
    const std::vector<CQrUiPaletteSet*> round = frame.bars();
    for (CQrUiPaletteSet* set : round) {
        const std::vector<CQrUiPaletteSet*>& now = frame.bars();
        if (std::find(now.begin(), now.end(), set) != now.end())
            function(*set);
    }
}

}  // namespace

void KeptBars::load(CQrUiPaletteSet& set) {
    if (m_storage == nullptr)
        return;
    const GUID tool = m_toolkit.paletteSets().of(&set).toolId;
    const HeldNode node(m_storage->openBar(tool, false));
    if (node.get() != nullptr && set.Load(node.get()) == 0)
        m_storage->complain(tool);
}

void KeptBars::loadAll() {
    m_toolkit.tools().forgetPlaces();
    forEachSet(m_toolkit.frame(), [this](CQrUiPaletteSet& set) { load(set); });
}

void KeptBars::saveAll() {
    if (m_storage == nullptr)
        return;
    for (const GUID& tool : m_toolkit.tools().placedTools()) {
        const HeldNode node(m_storage->openBar(tool, true));
        if (node.get() != nullptr)
            saveBarPlace(node.get(), *m_toolkit.tools().placeOf(tool));
    }
    forEachSet(m_toolkit.frame(), [this](CQrUiPaletteSet& set) {
        const HeldNode node(m_storage->openBar(m_toolkit.paletteSets().of(&set).toolId, true));
        if (node.get() != nullptr)
            set.Save(node.get());
    });
}

}  // namespace workbench
