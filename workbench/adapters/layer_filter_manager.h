#pragma once

#include "workbench/adapters/open_objects.h"

#include <hostapi/vxly.h>

namespace workbench {

/// The layer filters of a drawing, as modules see them.
class LayerFilterManager final : public VxLyLayerFilterManager {
public:
    /// `objects` must outlive it.
    explicit LayerFilterManager(OpenObjects& objects) : m_objects(objects) {}

    // VxLyLayerFilterManager:
    Zorq::ErrorStatus getFilters(VxLyLayerFilter*& root, VxLyLayerFilter*& current) override;
    Zorq::ErrorStatus setFilters(const VxLyLayerFilter* root,
                                 const VxLyLayerFilter* current) override;

private:
    drawing::Status write(const VxLyLayerFilter& root, const VxLyLayerFilter* current);

    OpenObjects& m_objects;
};

}  // namespace workbench
