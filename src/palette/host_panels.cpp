#include "palette/host_panels.h"

#include <hostapi/zorq/menu_data.h>

#include <utility>

namespace {

std::unique_ptr<PanelRecord> makeRecord(const VxPanelData& data) {
    auto record = std::make_unique<PanelRecord>();
    record->id = data.id;
    record->title = data.title;
    record->image = data.image;
    record->menuGroup = data.menuGroup;
    record->toolPanelIds = data.toolPanelIds;
    return record;
}

}  // namespace

bool readPanelRecords(PanelRecords& records) {
    const VxPanelSetData* data = vxedGetPanelSetData();
    if (data == nullptr || data->empty())
        return false;
    for (const VxPanelData* panel : *data) {
        if (panel != nullptr)
            records.push_back(makeRecord(*panel));
    }
    return true;
}

bool readWorkspacePanels(VxDaPanelList& list) {
    std::vector<VxWsPanelData> panels;
    if (!vxedGetWorkspacePanelData(panels))
        return false;
    list.clear();
    for (VxWsPanelData& panel : panels)
        list.emplace_back(std::move(panel.panelId), std::move(panel.menuGroup));
    return true;
}
