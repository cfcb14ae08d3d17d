#include "palette/foreign_module.h"

#include "tests/palette/palette_fixture.h"

namespace {

using Lines = std::vector<std::string>;

class ForeignModuleTest : public PaletteTest {
protected:
    /// What was asked of the loader since the journal was forgotten.
    Lines takeLoaderCalls() {
        return takeLines({"GetModuleHandle", "vxrxLoadModule", "GetProcAddress"});
    }
};

TEST_F(ForeignModuleTest, IsLoadedAtItsFirstUseWithoutAWordAndAsACommand) {
    forget();
    EXPECT_NE(findModuleExport(L"VxExampleTools.qlx", "VxDaButtonClicked"), nullptr);
    EXPECT_EQ(
        takeLoaderCalls(),
        (Lines{"GetModuleHandle(\"VxExampleTools.qlx\")",
               "vxrxLoadModule(\"VxExampleTools.qlx\", false, true)",
               "GetModuleHandle(\"VxDashboard.qlx\")", "GetModuleHandle(\"VxExampleTools.qlx\")",
               "GetProcAddress(\"VxExampleTools.qlx\", \"VxDaButtonClicked\")"}));
    EXPECT_NE(findModuleExport(L"VxExampleTools.qlx", "VxDaGetCustomControl"), nullptr);
    EXPECT_EQ(takeLoaderCalls(),
              (Lines{"GetModuleHandle(\"VxExampleTools.qlx\")",
                     "GetProcAddress(\"VxExampleTools.qlx\", \"VxDaGetCustomControl\")"}));
}

TEST_F(ForeignModuleTest, ThatCannotBeFoundOnceItIsLoadedGivesNull) {
    // The module itself asks once, for the dashboard, when it is loaded.
    fail("GetModuleHandle", 3);
    EXPECT_EQ(findModuleExport(L"VxExampleTools.qlx", "VxDaButtonClicked"), nullptr);
    EXPECT_EQ(callCount("GetProcAddress"), 0);
}

TEST_F(ForeignModuleTest, WithoutTheExportGivesNull) {
    EXPECT_EQ(findModuleExport(L"VxExampleTools.qlx", "NoSuchExport"), nullptr);
}

TEST_F(ForeignModuleTest, ThatIsMissingGivesNull) {
    forget();
    EXPECT_EQ(findModuleExport(L"Gone.qlx", "VxDaButtonClicked"), nullptr);
    EXPECT_EQ(takeLoaderCalls(), (Lines{"GetModuleHandle(\"Gone.qlx\")",
                                        "vxrxLoadModule(\"Gone.qlx\", false, true)"}));
}

}  // namespace
