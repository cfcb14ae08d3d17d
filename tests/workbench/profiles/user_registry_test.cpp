#include "workbench/profiles/user_registry.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/profiles/profile_store.h"

#include <gtest/gtest.h>

namespace workbench {

class UserRegistryTest : public testing::Test {
protected:
    HKEY open(const std::wstring& below) {
        return registry.open(HKEY_CURRENT_USER, UserRegistry::kProductKey + below);
    }
    /// A value of a key below the product's; nil, too, if there is no such key.
    Value read(const std::wstring& below, const wchar_t* name) {
        const HKEY key = open(below);
        Value value = registry.value(key, name);
        registry.close(key);
        return value;
    }
    void keep(const RegistryPath& path, const Value& value) {
        profiles.current().setRegistryValue(path, value);
    }

    Workbench bench{testOptions()};
    ProfileStore& profiles = bench.profiles();
    UserRegistry& registry = bench.userRegistry();
};

TEST_F(UserRegistryTest, TheProfilesKeyTellsWhichOneIsCurrent) {
    EXPECT_EQ(read(L"\\Profiles", L""), Value("Default"));
    profiles.switchTo("Drafting");
    EXPECT_EQ(read(L"\\profiles", L""), Value("Drafting"));
    EXPECT_TRUE(read(L"\\Profiles", L"Default").isNil());
}

TEST_F(UserRegistryTest, AProfilesKeysAreFoundWithoutRegardToCase) {
    keep({"Dialogs", "Apps:States", "Count"}, 7);
    EXPECT_EQ(read(L"\\Profiles\\Default\\Dialogs\\Apps:States", L"Count"), Value(7));
    EXPECT_EQ(read(L"\\PROFILES\\default\\dialogs\\APPS:states", L"cOUNT"), Value(7));
    EXPECT_TRUE(read(L"\\Profiles\\Default\\Dialogs", L"Count").isNil());
}

TEST_F(UserRegistryTest, AProfileThatIsNotCurrentKeepsItsOwn) {
    keep({"A", "B"}, "mine");
    profiles.save();
    profiles.switchTo("Other");
    keep({"A", "B"}, "other");
    EXPECT_EQ(read(L"\\Profiles\\Default\\A", L"B"), Value("mine"));
    EXPECT_EQ(read(L"\\Profiles\\Other\\A", L"B"), Value("other"));
}

TEST_F(UserRegistryTest, AProfileOnDiskIsReadWhenItsKeyIsOpened) {
    const auto folder = profiles.folder();
    {
        std::string complaint;
        Profile saved("Later", folder / "Later.xml", complaint);
        saved.setRegistryValue({"A", "B"}, 3);
        saved.save();
    }
    EXPECT_EQ(read(L"\\Profiles\\later\\A", L"B"), Value(3));
    EXPECT_EQ(open(L"\\Profiles\\Never"), nullptr);
}

TEST_F(UserRegistryTest, OnlyWhatLeadsToTheProfilesIsAKey) {
    for (const wchar_t* path : {L"Software", L"Software\\Zorq", L"software\\zorq\\ZORQ"}) {
        const HKEY key = registry.open(HKEY_CURRENT_USER, path);
        EXPECT_NE(key, nullptr) << path;
        EXPECT_TRUE(registry.value(key, L"").isNil());
    }
    for (const wchar_t* path : {L"", L"Other", L"Software\\Other", L"Software\\\\Zorq"})
        EXPECT_EQ(registry.open(HKEY_CURRENT_USER, path), nullptr) << path;
    EXPECT_EQ(registry.open(nullptr, L"Software"), nullptr);
    EXPECT_EQ(open(L"\\Profiles\\Default\\Dialogs"), nullptr);
    EXPECT_EQ(open(L"\\Other"), nullptr);
}

TEST_F(UserRegistryTest, AClosedKeyFindsNothingAndAnOpenOneGoesOnWithoutItsKey) {
    keep({"A", "B"}, 1);
    const HKEY key = open(L"\\Profiles\\Default\\A");
    EXPECT_EQ(registry.value(key, L"B"), Value(1));
    keep({"A", "B"}, Value());
    EXPECT_TRUE(registry.value(key, L"B").isNil());
    keep({"A", "B"}, 2);
    EXPECT_EQ(registry.value(key, L"B"), Value(2));
    EXPECT_EQ(registry.openCount(), 1U);
    registry.close(key);
    EXPECT_TRUE(registry.value(key, L"B").isNil());
    EXPECT_EQ(registry.openCount(), 0U);
}

}  // namespace workbench
