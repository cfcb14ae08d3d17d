#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/value_conversion.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace workbench::drawing {

class Database;

/// One property of a record: its name in files and scripts, how to read and change it, and the
/// range that a number must keep to.
template <class Data>
struct Property {
    std::string_view name;
    Value (*get)(const Data& data, const Database& database) = nullptr;
    void (*set)(Data& data, const Value& value, const Database& database) = nullptr;
    double least = 0.0;
    double most = 0.0;
    bool hasRange = false;
    bool saved = true;

    /// The same property with a range, both ends included.
    Property within(double from, double to) const {
        Property ranged = *this;
        ranged.least = from;
        ranged.most = to;
        ranged.hasRange = true;
        return ranged;
    }

    /// The same property as another way to reach what a saved property holds already.
    Property notSaved() const {
        Property unsaved = *this;
        unsaved.saved = false;
        return unsaved;
    }

    /// Throws `ValueError` for a number outside the range.
    void checkRange(const Value& value) const {
        if (hasRange && value.isNumber() && (value.asReal() < least || value.asReal() > most)) {
            throw ValueError("expected a number from " + Value(least).describe() + " to " +
                             Value(most).describe() + ", got " + value.describe());
        }
    }
};

/// The property that is the member at the end of a chain of member pointers, starting in `Data`:
/// `property<Viewport, &Viewport::view, &ViewParameters::eye>("eye")`.
template <class Data, auto... Members>
Property<Data> property(std::string_view name) {
    Property<Data> made;
    made.name = name;
    made.get = [](const Data& data, const Database& database) {
        return toValue((data.*....*Members), database);
    };
    made.set = [](Data& data, const Value& value, const Database& database) {
        auto& member = (data.*....*Members);
        // Converted apart from the member, so that a value that doesn't fit changes nothing.
        auto fresh = std::remove_reference_t<decltype(member)>();
        fromValue(value, fresh, database);
        member = std::move(fresh);
    };
    return made;
}

}  // namespace workbench::drawing
