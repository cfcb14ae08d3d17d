#include "tests/workbench/host/test_options.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/vxdb18.h>
#include <hostapi/vxtcui.h>

#include <gtest/gtest.h>

namespace workbench {

class ToolPalettesModuleTest : public testing::Test {
protected:
    static constexpr const wchar_t* kScheme = L"ToolPaletteScheme";

    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
};

TEST_F(ToolPalettesModuleTest, TheModuleShowsThemByItsSymbol) {
    ASSERT_TRUE(vxrxLoadModule(L"VxTp.qlx", false, true));
    const auto showScheme = reinterpret_cast<VxTpShowSchemeFn>(bench.modules().libraries().symbol(
        bench.modules().libraries().find(L"VxTp.qlx"), "VxTpShowScheme"));
    ASSERT_NE(showScheme, nullptr);
    EXPECT_EQ(showScheme(kScheme, 1), 1);
    EXPECT_NE(VxTcUiGetManager()->IsToolPaletteWindowVisible(), 0);
    EXPECT_EQ(showScheme(kScheme, 0), 1);
    EXPECT_EQ(VxTcUiGetManager()->IsToolPaletteWindowVisible(), 0);
    EXPECT_EQ(showScheme(L"Nothing", 1), 0);
    EXPECT_EQ(showScheme(nullptr, 1), 0);
}

TEST_F(ToolPalettesModuleTest, TheServiceGoesWithTheModule) {
    ASSERT_TRUE(vxrxLoadModule(L"VxTp.qlx", false, true));
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqToolPalette"));
    EXPECT_TRUE(bench.modules().unloadModule(L"VxTp.qlx"));
    EXPECT_FALSE(vxrxServiceIsRegistered(L"ZorqToolPalette"));
}

}  // namespace workbench
