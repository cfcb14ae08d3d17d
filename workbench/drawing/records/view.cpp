#include "workbench/drawing/records/view.h"

namespace workbench::drawing {

const std::vector<Property<View>>& View::properties() {
    static const std::vector<Property<View>> kProperties = [] {
        std::vector<Property<View>> all{
            property<View, &View::name>("name"),
            property<View, &View::category>("category"),
        };
        appendViewProperties<View, &View::view>(all);
        all.push_back(property<View, &View::visualStyle>("visualStyle"));
        all.push_back(property<View, &View::background>("background"));
        return all;
    }();
    return kProperties;
}

}  // namespace workbench::drawing
