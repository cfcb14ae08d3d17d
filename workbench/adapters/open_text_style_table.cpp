#include "workbench/adapters/open_text_style_table.h"

#include "workbench/adapters/symbol_table_walk.h"

namespace workbench {

namespace {

class TextStyleTableWalk final : public SymbolTableWalk<VxDbSymbolTableIterator> {
public:
    explicit TextStyleTableWalk(OpenObjects& objects)
        : SymbolTableWalk(objects, drawing::RecordKind::TextStyle) {}
};

}  // namespace

Zorq::ErrorStatus OpenTextStyleTable::newIterator(VxDbSymbolTableIterator*& iterator, bool atStart,
                                                  bool skipErased) const {
    HostCall call("VxDbTextStyleTable::newIterator", {atStart, skipErased});
    return handOutWalk<TextStyleTableWalk>(call, owner(), iterator, atStart, skipErased);
}

}  // namespace workbench
