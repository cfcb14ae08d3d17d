#include "workbench/drawing/json_text.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(JsonText, WhatFitsStaysOnOneLine) {
    const Value value = Value::Table{{"points", Value::List{Value::List{0, 0.5, -1}, 1}},
                                     {"name", "a \"b\"\n"},
                                     {"none", Value()},
                                     {"empty", Value::List{}}};
    EXPECT_EQ(jsonText(value),
              "{\n"
              "  \"points\": [[0, 0.5, -1], 1],\n"
              "  \"name\": \"a \\\"b\\\"\\n\",\n"
              "  \"none\": null,\n"
              "  \"empty\": []\n"
              "}\n");
}

TEST(JsonText, WhatIsTooLongIsBroken) {
    Value::List points;
    for (int i = 0; i < 40; ++i) {
        points.push_back(Value::List{i, i, i});
    }
    const std::string text = jsonText(Value::Table{{"points", points}});
    EXPECT_NE(text.find("  \"points\": [\n    [0, 0, 0],\n    [1, 1, 1],\n"), std::string::npos);
    EXPECT_NE(text.find("    [39, 39, 39]\n  ]\n}\n"), std::string::npos);
}

}  // namespace
}  // namespace workbench::drawing
