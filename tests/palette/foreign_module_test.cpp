#include "palette/foreign_module.h"

#include "tests/palette/palette_fixture.h"

namespace {

class ForeignModuleTest : public PaletteTest {};

TEST_F(ForeignModuleTest, IsLoadedOnceForItsExports) {
    EXPECT_NE(findModuleExport(L"VxExampleTools.qlx", "VxDaButtonClicked"), nullptr);
    EXPECT_NE(findModuleExport(L"VxExampleTools.qlx", "VxDaGetCustomControl"), nullptr);
    EXPECT_EQ(callCount("vxrxLoadModule"), 1);
}

TEST_F(ForeignModuleTest, WithoutTheExportGivesNull) {
    EXPECT_EQ(findModuleExport(L"VxExampleTools.qlx", "NoSuchExport"), nullptr);
}

TEST_F(ForeignModuleTest, ThatIsMissingGivesNull) {
    EXPECT_EQ(findModuleExport(L"Gone.qlx", "VxDaButtonClicked"), nullptr);
    EXPECT_EQ(callCount("GetProcAddress"), 0);
}

}  // namespace
