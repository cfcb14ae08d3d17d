#include "workbench/editor/command_registry.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

CommandDefinition define(const wchar_t* group, const wchar_t* global, const wchar_t* local) {
    CommandDefinition definition;
    definition.group = group;
    definition.globalName = global;
    definition.localName = local;
    return definition;
}

}  // namespace

TEST(CommandRegistryTest, FindsByGlobalAndLocalNameWithoutRegardToCase) {
    CommandRegistry registry;
    EXPECT_TRUE(registry.add(define(L"G", L"Circle", L"Kreis")));
    ASSERT_NE(registry.find(L"kreis", CommandNames::Any), nullptr);
    EXPECT_EQ(registry.find(L"kreis", CommandNames::Any)->globalName, L"CIRCLE");
    EXPECT_NE(registry.find(L"CIRCLE", CommandNames::Global), nullptr);
    EXPECT_EQ(registry.find(L"KREIS", CommandNames::Global), nullptr);
    EXPECT_EQ(registry.find(L"LINE", CommandNames::Any), nullptr);
}

TEST(CommandRegistryTest, ANameThatTheGroupHasKeepsItsCommand) {
    CommandRegistry registry;
    EXPECT_TRUE(registry.add(define(L"G", L"A", L"first")));
    EXPECT_FALSE(registry.add(define(L"g", L"a", L"second")));
    EXPECT_EQ(registry.find(L"A", CommandNames::Any)->localName, L"first");
    EXPECT_EQ(registry.all().size(), 1U);
}

TEST(CommandRegistryTest, TheCommandAddedLastHidesAnOlderOneUntilItsGroupGoes) {
    CommandRegistry registry;
    registry.add(define(L"OLD", L"A", L"old"));
    registry.add(define(L"NEW", L"A", L"new"));
    EXPECT_EQ(registry.find(L"A", CommandNames::Any)->localName, L"new");
    EXPECT_TRUE(registry.removeGroup(L"new"));
    EXPECT_EQ(registry.find(L"A", CommandNames::Any)->localName, L"old");
    EXPECT_FALSE(registry.removeGroup(L"NEW"));
}

TEST(CommandRegistryTest, ANameThatNoCommandBearsGoesToTheFallback) {
    CommandRegistry registry;
    registry.add(define(L"G", L"A", L"A"));
    registry.setFallback([](std::wstring_view name) -> std::shared_ptr<const CommandDefinition> {
        if (name != L"B")
            return nullptr;
        return std::make_shared<const CommandDefinition>(define(L"G", L"MADE", L"MADE"));
    });
    EXPECT_EQ(registry.find(L"A", CommandNames::Any)->globalName, L"A");
    EXPECT_EQ(registry.find(L"B", CommandNames::Global)->globalName, L"MADE");
    EXPECT_EQ(registry.find(L"C", CommandNames::Any), nullptr);
    EXPECT_EQ(registry.all().size(), 1U);
}

}  // namespace workbench
