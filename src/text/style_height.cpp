#include "text/style_height.h"

#include "controls/variable_access.h"
#include "core/host_objects.h"
#include "core/opened_object.h"
#include "core/opened_table.h"

#include <hostapi/vxdb18/text_style.h>

#include <memory>
#include <optional>

namespace {

constexpr double kUnknown = -1.0;
constexpr const wchar_t* kStyleVariable = L"TEXTSTYLE";

/// The height of the style that a walk stands at, if it has this name.
std::optional<double> heightIfNamed(const VxDbSymbolTableIterator& place, const VxString& name) {
    VxDbObjectId id;
    if (place.getRecordId(id) != Zorq::eOk)
        return {};
    const Opened<VxDbTextStyleTableRecord> style(id);
    VxString found;
    if (style.get() == nullptr || style.get()->getName(found) != Zorq::eOk || found != name)
        return {};
    return style.get()->textSize();
}

}  // namespace

double GetStyleHeight() {
    const std::optional<VxString> name = readVariableText(kStyleVariable);
    VxDbDatabase* database = workingDatabase();
    if (!name || database == nullptr)
        return kUnknown;
    const OpenedTable<VxDbTextStyleTable> table(*database);
    VxDbSymbolTableIterator* begun = nullptr;
    if (table.get() == nullptr || table.get()->newIterator(begun, true, true) != Zorq::eOk)
        return kUnknown;
    const std::unique_ptr<VxDbSymbolTableIterator> place(begun);
    for (place->start(); !place->done(); place->step()) {
        if (const std::optional<double> height = heightIfNamed(*place, *name))
            return *height;
    }
    return kUnknown;
}
