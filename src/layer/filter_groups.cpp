#include "core/host_objects.h"
#include "core/module_call.h"
#include "layer/filter_prop_ops.h"
#include "layer/filter_refresh.h"
#include "layer/layer_filter_mgr.h"

#include <hostapi/vxdb18/entity.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/layers.h>

#include <algorithm>

// Groups: filters that are lists of layers.

namespace {

bool removeAllLayers(VxLyLayerGroup& group) {
    const VxDbObjectIdArray layers = group.layerIds();
    return std::all_of(layers.begin(), layers.end(), [&group](VxDbObjectId layer) {
        return group.removeLayerId(layer) == Zorq::eOk;
    });
}

bool addLayerOf(VxDbObjectId entityId, VxLyLayerGroup& group) {
    VxDbEntity* entity = nullptr;
    if (vxdbOpenVxDbEntity(entity, entityId, VxDbOpenMode::kForRead) != Zorq::eOk)
        return false;
    const VxDbObjectId layer = entity->layerId();
    entity->close();
    return group.addLayerId(layer) == Zorq::eOk;
}

}  // namespace

bool CVxDaLayerFilterMgr::canConvertToGroup(VxLyLayerFilter* filter) {
    if (filter->isIdFilter() || filter->dynamicallyGenerated() || !filter->allowDelete())
        return false;
    const VxLyLayerFilter* parent = filter->parent();
    if (parent == nullptr || !(parent->dynamicallyGenerated() || parent->isIdFilter()))
        return false;
    const VxLyLayerFilterArray nested = filter->nestedFilters();
    return std::all_of(nested.begin(), nested.end(), [](VxLyLayerFilter* inner) {
        return inner->regenerateNested() == Zorq::eOk;
    });
}

int CVxDaLayerFilterMgr::convertToGroup(const VxString& name) {
    VxLyLayerFilter* old = findFilter(name);
    if (old == nullptr)
        return 0;
    if (dynamic_cast<VxLyLayerGroup*>(old) != nullptr)
        return 1;
    VxApDocument* document = currentDocument();
    VxDbDatabase* database = document == nullptr ? nullptr : document->database();
    if (database == nullptr || old->parent() == nullptr)
        return 0;
    std::unique_ptr<VxLyLayerGroup> group(new VxLyLayerGroup);
    if (group == nullptr)
        return 0;
    VxDaFilterPropLyToGrpOp fill(*group, *old);
    forEachLayer(database, fill);
    const bool moved = moveNested(*old, *group);
    if (!moved || !putInPlace(*old, std::move(group))) {
        forgetLostCurrent();
        return 0;
    }
    saveFilters();
    refreshFilterCombos();
    return 1;
}

/// Hands the nested filters over. One that can't be nested again goes with the copy.
bool CVxDaLayerFilterMgr::moveNested(VxLyLayerFilter& from, VxLyLayerGroup& to) {
    for (VxLyLayerFilter* nested : from.nestedFilters()) {
        if (from.removeNested(nested) != Zorq::eOk)
            return false;
        if (to.addNested(nested) != Zorq::eOk) {
            freeAfterCall(std::unique_ptr<VxLyLayerFilter>(nested));
            return false;
        }
    }
    return true;
}

/// Puts a group in the place of a filter, which ends.
bool CVxDaLayerFilterMgr::putInPlace(VxLyLayerFilter& old, std::unique_ptr<VxLyLayerGroup> group) {
    VxLyLayerFilter* parent = old.parent();
    group->setName(old.name());
    if (parent->addNested(group.get()) != Zorq::eOk)
        return false;
    VxLyLayerGroup* placed = group.release();
    if (parent->removeNested(&old) != Zorq::eOk) {
        if (parent->removeNested(placed) == Zorq::eOk)
            freeAfterCall(std::unique_ptr<VxLyLayerGroup>(placed));
        return false;
    }
    if (&old == m_current)
        m_current = placed;
    freeAfterCall(std::unique_ptr<VxLyLayerFilter>(&old));
    return true;
}

int CVxDaLayerFilterMgr::addSelectionToGroup(const VxString& name, bool replace,
                                             const VxDbObjectIdArray& entities) {
    VxApDocument* document = currentDocument();
    if (document == nullptr)
        return 0;
    const VxAxDocLock lock(document);
    VxLyLayerFilter* filter = findFilter(name);
    if (vxedGetInvertLayerFilterFlag())
        return 0;
    auto* group = dynamic_cast<VxLyLayerGroup*>(filter);
    if (group == nullptr || (replace && !removeAllLayers(*group)))
        return 0;
    for (const VxDbObjectId entity : entities) {
        if (!addLayerOf(entity, *group))
            return 0;
    }
    saveFilters();
    return 1;
}
