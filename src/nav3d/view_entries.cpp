#include "nav3d/view_entries.h"

#include "core/host_objects.h"
#include "core/opened_object.h"
#include "core/resources.h"

#include <hostapi/window/wnd.h>

#include <algorithm>

namespace {

struct ViewEntryRow {
    int code;
    UINT strText;
    const wchar_t* imageKey;  // null: no picture
    const wchar_t* command;   // null: nothing is sent
};

/// A leading apostrophe makes a command transparent; 3 is the host's cancel character.
///
/// Kept as it is: the texts of the two northern views run against their codes, because the texts were
/// numbered in another order.
constexpr ViewEntryRow kEntries[] = {
    {0, 1211, L"RCDATA_3DNAV_VIEW_TOP", L"'_-view _top "},
    {1, 1212, L"RCDATA_3DNAV_VIEW_BOTTOM", L"'_-view _bottom "},
    {2, 1213, L"RCDATA_3DNAV_VIEW_FRONT", L"'_-view _front "},
    {3, 1214, L"RCDATA_3DNAV_VIEW_BACK", L"'_-view _back "},
    {4, 1215, L"RCDATA_3DNAV_VIEW_LEFT", L"'_-view _left "},
    {5, 1216, L"RCDATA_3DNAV_VIEW_RIGHT", L"'_-view _right "},
    {6, 1217, L"RCDATA_3DNAV_VIEW_SW", L"'_-view _swiso "},
    {7, 1218, L"RCDATA_3DNAV_VIEW_SE", L"'_-view _seiso "},
    {8, 1220, L"RCDATA_3DNAV_VIEW_NE", L"'_-view _neiso "},
    {9, 1219, L"RCDATA_3DNAV_VIEW_NW", L"'_-view _nwiso "},
    {kViewEntryCurrent, 1237, nullptr, nullptr},
    {kViewEntryNew, 1221, nullptr, L"'_newview "},
    {kViewEntryManager, 1222, nullptr, L"\x03\x03_view "},
};

const ViewEntryRow* findRow(int code) {
    const auto* found = std::find_if(std::begin(kEntries), std::end(kEntries),
                                     [code](const ViewEntryRow& row) { return row.code == code; });
    return found == std::end(kEntries) ? nullptr : found;
}

VxString restoreCommandOf(VxDbObjectId viewId) {
    const Opened<VxDbViewTableRecord> view(viewId);
    VxString name;
    if (view.get() == nullptr || view.get()->getName(name) != Zorq::eOk)
        return {};
    // The name may hold blanks, so that only a new line can end it.
    return L"'_-view _restore " + name + L"\n";
}

using ViewIterator = std::unique_ptr<VxDbViewTableIterator>;

ViewIterator walkViews(VxDbDatabase& database) {
    VxDbViewTable* table = nullptr;
    if (database.getSymbolTable(table, VxDbOpenMode::kForRead) != Zorq::eOk)
        return nullptr;
    VxDbViewTableIterator* iterator = nullptr;
    if (table->newIterator(iterator, true, true) != Zorq::eOk)
        iterator = nullptr;
    table->close();
    return ViewIterator(iterator);
}

/// The entry of the view that a walk stands at; null if it can't be opened or named.
std::unique_ptr<ViewComboItem> makeNamedViewEntry(const VxDbViewTableIterator& place) {
    auto entry = std::make_unique<ViewComboItem>();
    entry->code = kViewEntryNamed;
    VxDbViewTableRecord* view = nullptr;
    if (place.getRecordId(entry->viewId) != Zorq::eOk ||
        place.getRecord(view, VxDbOpenMode::kForRead) != Zorq::eOk)
        return nullptr;
    const bool named = view->getName(entry->text) == Zorq::eOk;
    view->close();
    return named ? std::move(entry) : nullptr;
}

}  // namespace

std::unique_ptr<ViewComboItem> makeViewEntry(int code) {
    auto entry = std::make_unique<ViewComboItem>();
    entry->code = code;
    if (const ViewEntryRow* row = findRow(code)) {
        entry->text = loadDashboardString(row->strText);
        if (row->imageKey != nullptr)
            entry->image = loadDashboardPicture(row->imageKey, kSmallPixels);
    }
    return entry;
}

std::unique_ptr<QRUI_COMBO_CTRL_ITEM> makeViewSeparator() {
    auto separator = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
    separator->separator = 1;
    return separator;
}

std::vector<std::unique_ptr<ViewComboItem>> makeNamedViewEntries() {
    std::vector<std::unique_ptr<ViewComboItem>> entries;
    VxDbDatabase* database = workingDatabase();
    if (database == nullptr)
        return entries;
    const ViewIterator place = walkViews(*database);
    for (; place != nullptr && !place->done(); place->step()) {
        if (auto entry = makeNamedViewEntry(*place))
            entries.push_back(std::move(entry));
    }
    std::stable_sort(entries.begin(), entries.end(), [](const auto& left, const auto& right) {
        return CollateNoCase(left->text, right->text) < 0;
    });
    return entries;
}

VxString viewCommandOf(const ViewComboItem& entry) {
    if (entry.code == kViewEntryNamed)
        return restoreCommandOf(entry.viewId);
    const ViewEntryRow* row = findRow(entry.code);
    return row == nullptr || row->command == nullptr ? VxString() : VxString(row->command);
}
