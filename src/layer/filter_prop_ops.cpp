#include "layer/filter_prop_ops.h"

#include "core/resources.h"

#include <hostapi/window/messages.h>
#include <hostapi/window/module.h>

namespace {

constexpr UINT kStrCurrentNotFrozen = 4002;
constexpr UINT kStrKeepCurrentOn = 4003;

bool setFrozen(VxDbLayerTableRecord& layer, bool frozen) {
    return layer.upgradeOpen() == Zorq::eOk && layer.setIsFrozen(frozen) == Zorq::eOk;
}

bool freezeInViewport(VxDbViewport& viewport, VxDbObjectId layer, bool freeze) {
    const VxDbObjectIdArray one{layer};
    const Zorq::ErrorStatus status =
        freeze ? viewport.freezeLayersInViewport(one) : viewport.thawLayersInViewport(one);
    return status == Zorq::eOk;
}

void refuseToFreezeCurrent() {
    AfxMessageBox(loadDashboardString(kStrCurrentNotFrozen), MB_OK | MB_ICONWARNING);
}

bool userKeepsCurrentOn() {
    return AfxMessageBox(loadDashboardString(kStrKeepCurrentOn), MB_YESNO | MB_ICONWARNING) ==
           IDYES;
}

}  // namespace

bool CVxDaLayerFilterMgr::VxDaFilterLockPropOp::operator()(VxDbLayerTableRecord& layer) {
    if (!contains(layer) || layer.isLocked() == m_lock)
        return true;
    if (layer.upgradeOpen() != Zorq::eOk)
        return false;
    layer.setIsLocked(m_lock);
    return true;
}

bool CVxDaLayerFilterMgr::VxDaFilterVisOnPropOp::operator()(VxDbLayerTableRecord& layer) {
    if (!contains(layer) || layer.isOff() != m_on)
        return true;
    // Kept as it is: the current layer is asked for after the upgrade here, and refused before it where
    // layers are frozen, because only here it may still be changed.
    if (layer.upgradeOpen() != Zorq::eOk)
        return false;
    if (!m_on && layer.objectId() == m_currentLayer && userKeepsCurrentOn())
        return true;
    layer.setIsOff(!m_on);
    return true;
}

bool CVxDaLayerFilterMgr::VxDaFilterVisFrozenPropOp::operator()(VxDbLayerTableRecord& layer) {
    if (!contains(layer) || layer.isFrozen() == m_freeze)
        return true;
    if (m_freeze && layer.objectId() == m_currentLayer) {
        refuseToFreezeCurrent();
        return true;
    }
    return setFrozen(layer, m_freeze);
}

bool CVxDaLayerFilterMgr::VxDaFilterVpPropOp::operator()(VxDbLayerTableRecord& layer) {
    if (!contains(layer))
        return true;
    if (m_viewport.status() != Zorq::eOk || m_currentLayer.isNull())
        return false;
    if (layer.objectId() == m_currentLayer)
        return true;
    return freezeInViewport(*m_viewport.get(), layer.objectId(), m_freeze);
}

bool CVxDaLayerFilterMgr::VxDaFilterIsoGrpAllVpPropOp::operator()(VxDbLayerTableRecord& layer) {
    // Kept as it is: a frozen layer of the filter stays frozen, because to isolate is to hide the
    // others.
    if (contains(layer))
        return true;
    if (m_currentLayer.isNull())
        return false;
    if (layer.objectId() == m_currentLayer)
        return true;
    return setFrozen(layer, true);
}

bool CVxDaLayerFilterMgr::VxDaFilterIsoGrpActiveVpPropOp::operator()(VxDbLayerTableRecord& layer) {
    // Kept as it is: without the viewport the walk does nothing and counts as finished, while freezing
    // in the viewport ends with a failure.
    if (m_viewport.status() != Zorq::eOk)
        return true;
    if (m_currentLayer.isNull())
        return false;
    if (layer.objectId() == m_currentLayer)
        return true;
    const bool member = contains(layer);
    if (member && !setFrozen(layer, false))
        return false;
    return freezeInViewport(*m_viewport.get(), layer.objectId(), !member);
}

bool CVxDaLayerFilterMgr::VxDaFilterPropLyToGrpOp::operator()(VxDbLayerTableRecord& layer) {
    return !contains(layer) || m_group.addLayerId(layer.objectId()) == Zorq::eOk;
}
