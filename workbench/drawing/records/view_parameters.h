#pragma once

#include "workbench/drawing/database/property.h"

#include <vector>

namespace workbench::drawing {

/// Where a view looks from and to, and how much it shows.
struct ViewParameters {
    Vec3 eye{0.0, 0.0, 1.0};
    Vec3 target{0.0, 0.0, 0.0};
    Vec3 up{0.0, 1.0, 0.0};
    double width = 420.0;   // of the field at the target, drawing units
    double height = 297.0;  // likewise
    bool perspective = false;
    double lens = 50.0;  // millimetres

    friend bool operator==(const ViewParameters&, const ViewParameters&) = default;
};

/// Appends the properties of a view to those of the record that has it as the member `Whole`.
template <class Data, auto Whole>
void appendViewProperties(std::vector<Property<Data>>& all) {
    using View = ViewParameters;
    all.push_back(property<Data, Whole, &View::eye>("eye"));
    all.push_back(property<Data, Whole, &View::target>("target"));
    all.push_back(property<Data, Whole, &View::up>("up"));
    all.push_back(property<Data, Whole, &View::width>("width").within(1.0e-9, 1.0e20));
    all.push_back(property<Data, Whole, &View::height>("height").within(1.0e-9, 1.0e20));
    all.push_back(property<Data, Whole, &View::perspective>("perspective"));
    all.push_back(property<Data, Whole, &View::lens>("lens").within(1.0e-9, 1.0e20));
}

}  // namespace workbench::drawing
