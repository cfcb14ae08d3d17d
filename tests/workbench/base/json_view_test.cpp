#include "workbench/base/json_view.h"

#include "workbench/base/input_error.h"
#include "workbench/base/json_parser.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace workbench {

namespace {

class JsonViewTest : public testing::Test {
protected:
    JsonView view(const std::string& text) {
        m_root = parseJson(text, kFile);
        return JsonView(m_root, kFile);
    }

    static std::string complaint(const std::function<void()>& action) {
        try {
            action();
        } catch (const InputError& error) {
            return error.what();
        }
        ADD_FAILURE() << "no complaint";
        return {};
    }

private:
    const std::string kFile = "menu.json";
    JsonValue m_root;
};

}  // namespace

TEST_F(JsonViewTest, ValuesOfTheWantedKindAreHandedOut) {
    const JsonObjectView object =
        view(R"({"text": "a", "flag": true, "list": ["b", ""]})").object();
    EXPECT_EQ(object.at("text").string(), "a");
    EXPECT_EQ(object.at("text").name(), "a");
    EXPECT_TRUE(object.at("flag").boolean());
    const std::vector<JsonView> list = object.at("list").array();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].string(), "b");
    EXPECT_EQ(list[1].string(), "");
    EXPECT_EQ(object.keys(), (std::vector<std::string>{"text", "flag", "list"}));
}

TEST_F(JsonViewTest, AValueOfAnotherKindIsRefusedWithBothKinds) {
    const JsonObjectView object = view("{\"a\":\n3, \"b\": null, \"c\": \"d\"}").object();
    EXPECT_EQ(complaint([&] { object.at("a").string(); }),
              "menu.json:2: /a: must be a string, not a number");
    EXPECT_EQ(complaint([&] { object.at("b").boolean(); }),
              "menu.json:2: /b: must be true or false, not null");
    EXPECT_EQ(complaint([&] { object.at("c").array(); }),
              "menu.json:2: /c: must be an array, not a string");
    EXPECT_EQ(complaint([&] { object.at("c").object(); }),
              "menu.json:2: /c: must be an object, not a string");
}

TEST_F(JsonViewTest, TheWholeTextHasNoPointer) {
    const JsonView whole = view("[]");
    EXPECT_EQ(complaint([&] { whole.object(); }), "menu.json:1: must be an object, not an array");
}

TEST_F(JsonViewTest, ANameMustNotBeEmpty) {
    const JsonObjectView object = view(R"({"a": ""})").object();
    EXPECT_EQ(complaint([&] { object.at("a").name(); }), "menu.json:1: /a: must not be empty");
}

TEST_F(JsonViewTest, AKeyOutsideTheListIsRefused) {
    const JsonView whole = view("{\"a\": 1,\n\"c\": 2}");
    EXPECT_EQ(complaint([&] { whole.object({"a", "b"}); }), "menu.json:2: /c: unknown key \"c\"");
}

TEST_F(JsonViewTest, AMissingKeyIsToldOfTheObject) {
    const JsonObjectView object = view(R"({"a": {}})").object();
    EXPECT_FALSE(object.find("b").has_value());
    EXPECT_EQ(object.stringOr("b"), "");
    EXPECT_EQ(complaint([&] { object.at("a").object().at("b"); }),
              "menu.json:1: /a: needs the key \"b\"");
}

TEST_F(JsonViewTest, APointerNamesEachStepAndEscapesItsMarks) {
    const JsonObjectView object = view("{\"x/y~z\":\n[0, {\"k\":\n1}]}").object();
    const JsonView number = object.at("x/y~z").array()[1].object().at("k");
    EXPECT_EQ(complaint([&] { number.fail("bad"); }), "menu.json:3: /x~1y~0z/1/k: bad");
}

}  // namespace workbench
