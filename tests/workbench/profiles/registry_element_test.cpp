#include "workbench/profiles/registry_element.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>

namespace workbench {

class RegistryElementTest : public testing::Test {
protected:
    void write(const RegistryPath& key, const char* name, const Value& value) {
        writeRegistryValue(section, key, name, value);
    }
    Value read(const RegistryPath& key, const char* name) {
        return readRegistryValue(findRegistryKey(section, key), name);
    }

    pugi::xml_document document;
    pugi::xml_node section = document.append_child("Registry");
};

TEST_F(RegistryElementTest, PathsHaveTheirNamesBetweenEitherSeparator) {
    EXPECT_EQ(parseRegistryPath("Dialogs/Apps:States\\LayerNotFound"),
              (RegistryPath{"Dialogs", "Apps:States", "LayerNotFound"}));
    EXPECT_EQ(parseRegistryPath("One"), RegistryPath{"One"});
}

TEST_F(RegistryElementTest, APathWithAnEmptyNameOrAControlCharacterIsNone) {
    for (const char* path : {"", "/", "A//B", "A/", "\\A", "A/B\n", "A\x7f"})
        EXPECT_EQ(parseRegistryPath(path), std::nullopt) << path;
}

TEST_F(RegistryElementTest, ValuesComeBackInTheirTypeAtBothEndsOfTheirRange) {
    write({"A", "B"}, "Number", std::int64_t{4294967295});
    write({"A", "B"}, "Zero", 0);
    write({"A"}, "Text", "x \"y\" <z>\n");
    EXPECT_EQ(read({"A", "B"}, "Number"), Value(std::int64_t{4294967295}));
    EXPECT_EQ(read({"A", "B"}, "Zero"), Value(0));
    EXPECT_EQ(read({"A"}, "Text"), Value("x \"y\" <z>\n"));
    EXPECT_TRUE(read({"A"}, "Number").isNil());
    EXPECT_TRUE(read({"B"}, "Number").isNil());
}

TEST_F(RegistryElementTest, NamesAreTakenWithoutRegardToCase) {
    write({"Dialogs"}, "Value", 1);
    write({"DIALOGS"}, "VALUE", 2);
    EXPECT_EQ(read({"dialogs"}, "value"), Value(2));
    EXPECT_EQ(std::distance(section.begin(), section.end()), 1);
}

TEST_F(RegistryElementTest, NilTakesAValueAwayWithTheKeysThatHoldNothingElse) {
    write({"A", "B", "C"}, "Value", 1);
    write({"A"}, "Other", 2);
    write({"A", "B", "C"}, "Value", Value());
    EXPECT_FALSE(findRegistryKey(section, {"A", "B"}));
    EXPECT_EQ(read({"A"}, "Other"), Value(2));
    write({"A"}, "Other", Value());
    EXPECT_FALSE(section.first_child());
    write({"None"}, "Value", Value());
    EXPECT_FALSE(section.first_child());
}

TEST_F(RegistryElementTest, AnElementThatMakesNoSenseIsNoValue) {
    ASSERT_TRUE(document.load_string(
        R"(<Registry><Key Name="A"><Value Name="N" Type="dword" Data="1x"/>
           <Value Name="M" Type="dword" Data="-1"/><Value Name="L" Type="real" Data="1"/></Key></Registry>)"));
    section = document.first_child();
    for (const char* name : {"N", "M", "L"})
        EXPECT_TRUE(read({"A"}, name).isNil()) << name;
}

TEST_F(RegistryElementTest, WhatItCanHoldIsATextOrANumberOf32BitsWithoutSign) {
    EXPECT_TRUE(isRegistryValue(0));
    EXPECT_TRUE(isRegistryValue(std::int64_t{4294967295}));
    EXPECT_TRUE(isRegistryValue("a\tb"));
    EXPECT_FALSE(isRegistryValue(-1));
    EXPECT_FALSE(isRegistryValue(std::int64_t{4294967296}));
    EXPECT_FALSE(isRegistryValue(1.0));
    EXPECT_FALSE(isRegistryValue(true));
    EXPECT_FALSE(isRegistryValue("a\x01"));
    EXPECT_FALSE(isRegistryValue(Value()));
}

}  // namespace workbench
