#include "layer/layer_walk.h"

#include "core/host_objects.h"
#include "core/opened_table.h"

#include <hostapi/window/wnd.h>

std::unique_ptr<VxDbLayerTableIterator> walkLayers(const VxDbLayerTable& table) {
    VxDbLayerTableIterator* place = nullptr;
    if (table.newIterator(place, true, true) != Zorq::eOk)
        return nullptr;
    return std::unique_ptr<VxDbLayerTableIterator>(place);
}

VxDbObjectIdArray collectLayerIds() {
    const CWaitCursor waiting;
    VxDbObjectIdArray ids;
    VxDbDatabase* database = workingDatabase();
    if (database == nullptr)
        return ids;
    const OpenedTable<VxDbLayerTable> table(*database);
    const auto place = table.get() == nullptr ? nullptr : walkLayers(*table.get());
    if (place == nullptr)
        return ids;
    for (place->start(true, true); !place->done(); place->step(true, true)) {
        VxDbObjectId id;
        if (place->getRecordId(id) == Zorq::eOk)
            ids.push_back(id);
    }
    return ids;
}
