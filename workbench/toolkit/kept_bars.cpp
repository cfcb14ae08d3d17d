#include "workbench/toolkit/kept_bars.h"

#include "workbench/toolkit/held_node.h"
#include "workbench/toolkit/toolkit.h"

namespace workbench {

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
    m_toolkit.frame().forEachBar([this](CQrUiPaletteSet& set) { load(set); });
}

void KeptBars::saveAll() {
    if (m_storage == nullptr)
        return;
    for (const GUID& tool : m_toolkit.tools().placedTools()) {
        const HeldNode node(m_storage->openBar(tool, true));
        if (node.get() != nullptr)
            saveBarPlace(node.get(), *m_toolkit.tools().placeOf(tool));
    }
    m_toolkit.frame().forEachBar([this](CQrUiPaletteSet& set) {
        const HeldNode node(m_storage->openBar(m_toolkit.paletteSets().of(&set).toolId, true));
        if (node.get() != nullptr)
            set.Save(node.get());
    });
}

}  // namespace workbench
