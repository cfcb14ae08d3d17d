#include "core/host_objects.h"
#include "core/opened_object.h"
#include "core/opened_table.h"
#include "layer/filter_prop_ops.h"
#include "layer/layer_filter_mgr.h"
#include "layer/layer_walk.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/views.h>

// Changes of the layers that a filter shows.

namespace {

/// A filter and the drawing that its layers are changed in, locked while this lives. Without the one or
/// the other it is not ready.
class FilterWork {
public:
    FilterWork(const CVxDaLayerFilterMgr& manager, const VxString& name)
        : m_filter(manager.findFilter(name)),
          m_document(m_filter == nullptr ? nullptr : currentDocument()),
          m_lock(m_document) {}

    bool isReady() const { return m_document != nullptr; }
    const VxLyLayerFilter& filter() const { return *m_filter; }
    /// Null for a document without one.
    VxDbDatabase* database() const { return m_document->database(); }
    VxDbObjectId currentLayer() const {
        const VxDbDatabase* drawing = database();
        return drawing == nullptr ? VxDbObjectId() : drawing->clayer();
    }

private:
    const VxLyLayerFilter* m_filter;
    VxApDocument* m_document;
    VxAxDocLock m_lock;
};

/// Calls an operation for a layer by its ID. Whether the walk goes on.
bool deal(CVxDaLayerFilterMgr::VxDaFilterPropOp& operation, VxDbObjectId id) {
    VxDbObject* object = nullptr;
    if (vxdbOpenObject(object, id, VxDbOpenMode::kForRead) != Zorq::eOk)
        return false;
    auto* layer = dynamic_cast<VxDbLayerTableRecord*>(object);
    const bool goesOn = layer != nullptr && operation(*layer);
    object->close();
    return goesOn;
}

}  // namespace

int CVxDaLayerFilterMgr::forEachLayer(VxDbDatabase* database, VxDaFilterPropOp& operation) {
    if (database == nullptr)
        return 0;
    const OpenedTable<VxDbLayerTable> table(*database);
    const auto place = table.get() == nullptr ? nullptr : walkLayers(*table.get());
    if (place == nullptr)
        return 0;
    for (place->start(true, true); !place->done(); place->step(true, true)) {
        VxDbObjectId id;
        if (place->getRecordId(id) != Zorq::eOk || !deal(operation, id))
            return 0;
    }
    return 1;
}

int CVxDaLayerFilterMgr::setLayersOn(const VxString& name, bool on) {
    const FilterWork work(*this, name);
    if (!work.isReady())
        return 0;
    VxDaFilterVisOnPropOp operation(on, work.filter(), work.currentLayer());
    return forEachLayer(work.database(), operation);
}

int CVxDaLayerFilterMgr::setLayersFrozen(const VxString& name, bool freeze) {
    const FilterWork work(*this, name);
    if (!work.isReady())
        return 0;
    VxDaFilterVisFrozenPropOp operation(freeze, work.filter(), work.currentLayer());
    return forEachLayer(work.database(), operation);
}

int CVxDaLayerFilterMgr::setLayersLocked(const VxString& name, bool lock) {
    const FilterWork work(*this, name);
    if (!work.isReady())
        return 0;
    VxDaFilterLockPropOp operation(lock, work.filter());
    return forEachLayer(work.database(), operation);
}

int CVxDaLayerFilterMgr::setLayersFrozenInViewport(const VxString& name, bool freeze) {
    const FilterWork work(*this, name);
    if (!work.isReady() || work.database() == nullptr || work.database()->tilemode())
        return 0;
    const VxDbObjectId currentLayer = work.currentLayer();
    OpenViewport viewport;
    if (!currentLayer.isNull()) {
        const VxDbObjectId id = vxedGetCurViewportObjectId();
        if (!id.isNull())
            viewport.open(id);
    }
    VxDaFilterVpPropOp operation(freeze, viewport, work.filter(), currentLayer);
    return forEachLayer(work.database(), operation);
}

int CVxDaLayerFilterMgr::isolateGroupActiveViewport(const VxString& name) {
    const FilterWork work(*this, name);
    if (!work.isReady())
        return 0;
    const VxDbObjectId currentLayer = work.currentLayer();
    OpenViewport viewport;
    if (!currentLayer.isNull())
        viewport.open(vxedGetCurViewportObjectId());
    VxDaFilterIsoGrpActiveVpPropOp operation(viewport, work.filter(), currentLayer);
    return forEachLayer(work.database(), operation);
}

int CVxDaLayerFilterMgr::isolateGroupAllViewports(const VxString& name) {
    const FilterWork work(*this, name);
    if (!work.isReady())
        return 0;
    VxDaFilterIsoGrpAllVpPropOp operation(work.filter(), work.currentLayer());
    return forEachLayer(work.database(), operation);
}
