#pragma once

#include "layer/layer_filter_mgr.h"
#include "layer/open_viewport.h"

#include <hostapi/vxly.h>

/// What is done to each layer of a walk. An operation lives for one walk; what it is made with must
/// outlive it.
class CVxDaLayerFilterMgr::VxDaFilterPropOp {
public:
    /// Deals with a layer that is open for reading. Whether the walk goes on.
    virtual bool operator()(VxDbLayerTableRecord& layer) = 0;

protected:
    explicit VxDaFilterPropOp(const VxLyLayerFilter& filter) : m_filter(filter) {}
    ~VxDaFilterPropOp() = default;

    bool contains(const VxDbLayerTableRecord& layer) const { return m_filter.contains(&layer); }

private:
    const VxLyLayerFilter& m_filter;
};

/// Locks or unlocks the layers of a filter.
class CVxDaLayerFilterMgr::VxDaFilterLockPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterLockPropOp(bool lock, const VxLyLayerFilter& filter)
        : VxDaFilterPropOp(filter),
          m_lock(lock) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    bool m_lock;
};

/// Turns the layers of a filter on or off; asks for the current layer.
class CVxDaLayerFilterMgr::VxDaFilterVisOnPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterVisOnPropOp(bool on, const VxLyLayerFilter& filter, VxDbObjectId currentLayer)
        : VxDaFilterPropOp(filter),
          m_on(on),
          m_currentLayer(currentLayer) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    bool m_on;
    VxDbObjectId m_currentLayer;
};

/// Freezes or thaws the layers of a filter everywhere; refuses to freeze the current layer.
class CVxDaLayerFilterMgr::VxDaFilterVisFrozenPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterVisFrozenPropOp(bool freeze, const VxLyLayerFilter& filter, VxDbObjectId currentLayer)
        : VxDaFilterPropOp(filter),
          m_freeze(freeze),
          m_currentLayer(currentLayer) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    bool m_freeze;
    VxDbObjectId m_currentLayer;
};

/// Freezes or thaws the layers of a filter in one viewport; leaves the current layer alone.
class CVxDaLayerFilterMgr::VxDaFilterVpPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterVpPropOp(bool freeze, const OpenViewport& viewport, const VxLyLayerFilter& filter,
                       VxDbObjectId currentLayer)
        : VxDaFilterPropOp(filter),
          m_freeze(freeze),
          m_viewport(viewport),
          m_currentLayer(currentLayer) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    bool m_freeze;
    const OpenViewport& m_viewport;
    VxDbObjectId m_currentLayer;
};

/// Freezes everywhere what a filter doesn't hold; leaves the current layer alone.
class CVxDaLayerFilterMgr::VxDaFilterIsoGrpAllVpPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterIsoGrpAllVpPropOp(const VxLyLayerFilter& filter, VxDbObjectId currentLayer)
        : VxDaFilterPropOp(filter),
          m_currentLayer(currentLayer) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    VxDbObjectId m_currentLayer;
};

/// Thaws the layers of a filter and freezes the others in one viewport; leaves the current layer alone.
class CVxDaLayerFilterMgr::VxDaFilterIsoGrpActiveVpPropOp final : public VxDaFilterPropOp {
public:
    VxDaFilterIsoGrpActiveVpPropOp(const OpenViewport& viewport, const VxLyLayerFilter& filter,
                                   VxDbObjectId currentLayer)
        : VxDaFilterPropOp(filter),
          m_viewport(viewport),
          m_currentLayer(currentLayer) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    const OpenViewport& m_viewport;
    VxDbObjectId m_currentLayer;
};

/// Adds the layers of a filter to a group.
class CVxDaLayerFilterMgr::VxDaFilterPropLyToGrpOp final : public VxDaFilterPropOp {
public:
    VxDaFilterPropLyToGrpOp(VxLyLayerGroup& group, const VxLyLayerFilter& filter)
        : VxDaFilterPropOp(filter),
          m_group(group) {}
    bool operator()(VxDbLayerTableRecord& layer) override;

private:
    VxLyLayerGroup& m_group;
};
