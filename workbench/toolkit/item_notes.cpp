#include "workbench/toolkit/item_notes.h"

#include "workbench/base/text.h"
#include "workbench/toolkit/tool_panel_item_record.h"

#include <hostapi/zorq/menu_data.h>

namespace workbench {

namespace {

struct StateField {
    UINT bit;
    const char* name;
};
constexpr StateField kStateFields[] = {
    {kItemDisabled, "disabled"},
    {kItemChecked, "checked"},
    {kItemHidden, "hidden"},
};

}  // namespace

const VxString& knownId(const CQrUiToolPanelItem& item) {
    const VxToolPanelItemData* const data = item.m_record->data;
    return data == nullptr || data->id.empty() ? item.m_record->id : data->id;
}

bool isSeen(const CQrUiToolPanelItem& item) {
    const CQrUiToolPanelItem* outermost = &item;
    while (outermost->m_record->flyout != nullptr)
        outermost = outermost->m_record->flyout;
    return outermost->m_record->laidOut;
}

bool isNoted(const Journal& journal, const CQrUiToolPanelItem& item) {
    return journal.isRecording() && isSeen(item);
}

void noteItem(Journal& journal, const CQrUiToolPanelItem& item, std::string_view field,
              Value before, Value after) {
    if (!isNoted(journal, item) || before == after)
        return;
    journal.add("item", {{"id", toUtf8(knownId(item))},
                         {"field", std::string(field)},
                         {"old", std::move(before)},
                         {"new", std::move(after)}});
}

void noteItemState(Journal& journal, const CQrUiToolPanelItem& item, UINT before, UINT after) {
    for (const StateField& field : kStateFields)
        noteItem(journal, item, field.name, (before & field.bit) != 0, (after & field.bit) != 0);
}

}  // namespace workbench
