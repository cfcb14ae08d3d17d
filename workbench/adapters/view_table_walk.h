#pragma once

#include "workbench/adapters/open_objects.h"

#include <hostapi/vxdb18/database.h>

#include <cstddef>
#include <vector>

namespace workbench {

/// A walk over the views as they were when it began; one that is erased meanwhile can't be opened.
class ViewTableWalk final : public VxDbViewTableIterator {
public:
    /// From the first view on, or from the last one back.
    ViewTableWalk(OpenObjects& objects, bool atStart);

    // VxDbViewTableIterator:
    bool done() const override { return m_place >= m_ids.size(); }
    void step() override { ++m_place; }
    Zorq::ErrorStatus getRecordId(VxDbObjectId& id) const override;
    Zorq::ErrorStatus getRecord(VxDbViewTableRecord*& record, VxDbOpenMode mode) const override;

private:
    OpenObjects& m_objects;
    std::vector<drawing::ObjectId> m_ids;
    std::size_t m_place = 0;
};

}  // namespace workbench
