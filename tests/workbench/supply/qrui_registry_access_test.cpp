#include "tests/support/call_lines.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/profiles/user_registry.h"

#include <hostapi/qrui18/registry_access.h>
#include <hostapi/vxdb18/rx_object.h>

#include <gtest/gtest.h>

namespace workbench {

class RegistryAccessTest : public testing::Test {
protected:
    RegistryAccessTest() {
        Profile& profile = bench.profiles().current();
        profile.setRegistryValue({"Dialogs", "Number"}, 5);
        profile.setRegistryValue({"Dialogs", "Text"}, "words");
    }
    static VxString dialogs() { return vxrxProductKey() + L"\\Profiles\\Default\\Dialogs"; }

    Workbench bench{testOptions()};
    CQrUiRegistryAccess access;
};

TEST_F(RegistryAccessTest, AValueIsReadInItsOwnTypeOnly) {
    ASSERT_TRUE(access.Open(HKEY_CURRENT_USER, dialogs()));
    DWORD number = 1;
    VxString text = L"before";
    EXPECT_FALSE(access.GetDWORD(L"Text", number));
    EXPECT_FALSE(access.GetString(L"Number", text));
    EXPECT_FALSE(access.GetDWORD(L"None", number));
    EXPECT_FALSE(access.GetDWORD(nullptr, number));
    EXPECT_EQ(number, 1U);
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(access.GetDWORD(L"number", number));
    EXPECT_TRUE(access.GetString(L"TEXT", text));
    EXPECT_EQ(number, 5U);
    EXPECT_EQ(text, L"words");
}

TEST_F(RegistryAccessTest, TheDefaultValueOfTheProfilesIsTheCurrentOnesName) {
    ASSERT_TRUE(access.Open(HKEY_CURRENT_USER, vxrxProductKey() + L"\\Profiles"));
    VxString name;
    EXPECT_TRUE(access.GetString(L"", name));
    EXPECT_EQ(name, L"Default");
}

TEST_F(RegistryAccessTest, AnotherOpenOrACloseEndsTheKey) {
    ASSERT_TRUE(access.Open(HKEY_CURRENT_USER, dialogs()));
    EXPECT_FALSE(access.Open(HKEY_CURRENT_USER, L"Nowhere"));
    DWORD number = 0;
    EXPECT_FALSE(access.GetDWORD(L"Number", number));
    ASSERT_TRUE(access.Open(HKEY_CURRENT_USER, dialogs()));
    access.Close();
    access.Close();
    EXPECT_FALSE(access.GetDWORD(L"Number", number));
    EXPECT_EQ(bench.userRegistry().openCount(), 0U);
}

TEST_F(RegistryAccessTest, ItsEndClosesTheKey) {
    {
        CQrUiRegistryAccess brief;
        EXPECT_TRUE(brief.Open(HKEY_CURRENT_USER, dialogs()));
        EXPECT_EQ(bench.userRegistry().openCount(), 1U);
    }
    EXPECT_EQ(bench.userRegistry().openCount(), 0U);
}

TEST_F(RegistryAccessTest, EachCallIsNotedWithItsAnswer) {
    bench.journal().take();
    VxString name;
    access.Open(HKEY_CURRENT_USER, L"Software");
    access.GetString(L"", name);
    access.Close();
    EXPECT_EQ(support::callLines(bench.journal().take()),
              (std::vector<std::string>{R"(CQrUiRegistryAccess::Open("Software"))",
                                        R"(CQrUiRegistryAccess::GetString(""))",
                                        "CQrUiRegistryAccess::Close()"}));
}

TEST_F(RegistryAccessTest, TheCallsCanBeToldToFail) {
    ASSERT_TRUE(access.Open(HKEY_CURRENT_USER, dialogs()));
    DWORD number = 0;
    VxString text;
    bench.faults().fail("CQrUiRegistryAccess::GetDWORD", {}, 1);
    bench.faults().fail("CQrUiRegistryAccess::GetString", {}, 1);
    EXPECT_FALSE(access.GetDWORD(L"Number", number));
    EXPECT_FALSE(access.GetString(L"Text", text));
    EXPECT_TRUE(access.GetDWORD(L"Number", number));
    bench.faults().fail("CQrUiRegistryAccess::Open", {}, 1);
    EXPECT_FALSE(access.Open(HKEY_CURRENT_USER, dialogs()));
    bench.faults().fail("vxrxProductKey", {}, 1);
    EXPECT_EQ(vxrxProductKey(), L"");
    EXPECT_EQ(vxrxProductKey(), UserRegistry::kProductKey);
}

}  // namespace workbench
