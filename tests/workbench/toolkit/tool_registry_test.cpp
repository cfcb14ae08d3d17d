#include "workbench/toolkit/tool_registry.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr GUID kDashboard{1, 2, 3, {4}};
constexpr GUID kOther{1, 2, 3, {5}};

TEST(ToolRegistryTest, AToolIsFoundByItsId) {
    ToolRegistry tools;
    tools.add(kDashboard, {L"A.qlx", L"SHOWA"});
    ASSERT_NE(tools.find(kDashboard), nullptr);
    EXPECT_EQ(tools.find(kDashboard)->command, L"SHOWA");
    EXPECT_EQ(tools.find(kOther), nullptr);
}

TEST(ToolRegistryTest, ALaterEntryReplacesAnEarlierOne) {
    ToolRegistry tools;
    tools.add(kDashboard, {L"A.qlx", L"SHOWA"});
    tools.add(kDashboard, {L"B.qlx", L"SHOWB"});
    EXPECT_EQ(tools.find(kDashboard)->moduleName, L"B.qlx");
}

TEST(ToolRegistryTest, APlaceIsRememberedWithOrWithoutATool) {
    ToolRegistry tools;
    const BarPlace place{true, Edge::Left, false, {1, 2, 30, 40}};
    EXPECT_EQ(tools.placeOf(kOther), std::nullopt);
    tools.rememberPlace(kOther, place);
    EXPECT_EQ(tools.placeOf(kOther), place);
    EXPECT_EQ(tools.find(kOther), nullptr);
}

}  // namespace
}  // namespace workbench
