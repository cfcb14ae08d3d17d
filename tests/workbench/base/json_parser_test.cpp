#include "workbench/base/json_parser.h"

#include "tests/support/temporary_folder.h"
#include "workbench/base/input_error.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace workbench {

namespace {

JsonValue parse(const std::string& text) {
    return parseJson(text, "menu.json");
}

/// The one complaint about a text; fails the test if there is none.
std::string complaintAbout(const std::string& text) {
    try {
        parse(text);
    } catch (const InputError& error) {
        return error.what();
    }
    ADD_FAILURE() << "no complaint about: " << text;
    return {};
}

std::string nested(int depth) {
    const auto count = static_cast<std::size_t>(depth);
    return std::string(count, '[') + std::string(count, ']');
}

}  // namespace

TEST(JsonParserTest, EveryKindOfValueIsRead) {
    const JsonValue root = parse(R"([null, true, -2, 18446744073709551615, 1.5, "Wände", {}])");
    ASSERT_EQ(root.kind, JsonValue::Kind::Array);
    ASSERT_EQ(root.items.size(), 7U);
    EXPECT_EQ(root.items[0].kind, JsonValue::Kind::Null);
    EXPECT_EQ(root.items[1].kind, JsonValue::Kind::Boolean);
    EXPECT_TRUE(root.items[1].boolean);
    EXPECT_EQ(root.items[2].kind, JsonValue::Kind::Number);
    EXPECT_DOUBLE_EQ(root.items[2].number, -2.0);
    EXPECT_DOUBLE_EQ(root.items[3].number, 18446744073709551615.0);
    EXPECT_DOUBLE_EQ(root.items[4].number, 1.5);
    EXPECT_EQ(root.items[5].text, "Wände");
    EXPECT_EQ(root.items[6].kind, JsonValue::Kind::Object);
}

TEST(JsonParserTest, NamesKeepTheOrderOfTheText) {
    const JsonValue root = parse(R"({"zebra": 1, "ape": [2, 3]})");
    EXPECT_EQ(root.names, (std::vector<std::string>{"zebra", "ape"}));
    EXPECT_DOUBLE_EQ(root.items[1].items[1].number, 3.0);
}

TEST(JsonParserTest, EveryValueKnowsItsLine) {
    const JsonValue root = parse("{\n\"a\": 12\n,\"b\": [\n\"x\",\n{\n}\n],\n\"c\": 1}");
    EXPECT_EQ(root.line, 1);
    EXPECT_EQ(root.items[0].line, 2);
    EXPECT_EQ(root.items[1].line, 3);
    EXPECT_EQ(root.items[1].items[0].line, 4);
    EXPECT_EQ(root.items[1].items[1].line, 5);
    EXPECT_EQ(root.items[2].line, 8);
}

TEST(JsonParserTest, BrokenJsonIsPlacedByLineAndColumn) {
    const std::string complaint = complaintAbout("{\n  \"ä\" 1\n}");
    EXPECT_EQ(complaint.find("menu.json:2:7: not valid JSON: "), 0U) << complaint;
}

TEST(JsonParserTest, AnEndTooEarlyIsPlacedWhereTheTextEnds) {
    const std::string complaint = complaintAbout("[1,\n 2");
    EXPECT_EQ(complaint.find("menu.json:2:3: not valid JSON: "), 0U) << complaint;
}

TEST(JsonParserTest, AnEmptyTextIsNotValid) {
    EXPECT_EQ(complaintAbout("").find("menu.json:1:1: not valid JSON: "), 0U);
}

TEST(JsonParserTest, ATextAfterTheValueIsNotValid) {
    EXPECT_EQ(complaintAbout("{}\n{}").find("menu.json:2:1: not valid JSON: "), 0U);
}

TEST(JsonParserTest, ANumberBeyondAllRangeIsNotValid) {
    EXPECT_EQ(complaintAbout("[1e999]").find("menu.json:1:"), 0U);
}

TEST(JsonParserTest, ABrokenCharacterIsNotValidAndNotRepeated) {
    const std::string complaint = complaintAbout("[\"\xC3(\"]");
    EXPECT_EQ(complaint.find("menu.json:1:4: not valid JSON: "), 0U) << complaint;
    EXPECT_EQ(complaint.find('\xC3'), std::string::npos) << complaint;
}

TEST(JsonParserTest, AKeyThatStandsTwiceIsPlacedAtTheSecond) {
    EXPECT_EQ(complaintAbout("{\"a\": 1,\n\"b\": 2,\n\"a\": 3}"),
              "menu.json:3: the key \"a\" stands twice in one object");
}

TEST(JsonParserTest, NestingIsTakenToTheLimitAndNoDeeper) {
    EXPECT_EQ(parse(nested(kMaxJsonDepth)).kind, JsonValue::Kind::Array);
    EXPECT_EQ(complaintAbout(nested(kMaxJsonDepth + 1)),
              "menu.json:1: nested deeper than 200 levels");
}

TEST(JsonParserTest, AMissingFileIsNamed) {
    try {
        readWholeFile("no/such/menu.json");
        FAIL() << "a missing file was read";
    } catch (const InputError& error) {
        EXPECT_EQ(error.place(), "no/such/menu.json");
        EXPECT_EQ(error.reason().find("cannot be opened: "), 0U);
    }
}

TEST(JsonParserTest, AFolderIsNotTakenForAFile) {
    try {
        readWholeFile(std::filesystem::temp_directory_path());
        FAIL() << "a folder was read";
    } catch (const InputError& error) {
        EXPECT_EQ(error.reason(), "is a folder, not a file");
    }
}

TEST(JsonParserTest, AFileIsReadByteForByte) {
    const support::TemporaryFolder folder;
    const std::string bytes("a\r\n\0b", 5);
    folder.write("text.txt", bytes);
    EXPECT_EQ(readWholeFile(folder.path / "text.txt"), bytes);
}

}  // namespace workbench
