#pragma once

#include <string>
#include <vector>

namespace workbench {

/// A value of a JSON text, as read: names keep the order of the file, every value knows its line.
struct JsonValue {
    enum class Kind { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    int line = 1;                    ///< line on which the value begins, from 1
    bool boolean = false;            ///< the value, for a boolean
    double number = 0.0;             ///< the value, for a number
    std::string text;                ///< the value, for a string; UTF-8
    std::vector<std::string> names;  ///< of an object: the key of each of `items`, all different
    std::vector<JsonValue> items;    ///< the elements of an array, or the values of an object
};

}  // namespace workbench
