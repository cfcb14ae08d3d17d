#include "workbench/loader/library_table.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/loader/loader_fixture.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace workbench {

class LibraryTableTest : public LoaderTest {
protected:
    LibraryTable table{WORKBENCH_BIN_DIR, bench.faults()};
};

TEST_F(LibraryTableTest, ALibraryIsOpenedOnceAndClosedWithItsLastCount) {
    const HINSTANCE first = table.load(kResources);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(table.load(kResources), first);
    EXPECT_EQ(table.openCount(), 1U);
    EXPECT_TRUE(table.free(first));
    EXPECT_EQ(table.find(kResources), first);
    EXPECT_TRUE(table.free(first));
    EXPECT_EQ(table.find(kResources), nullptr);
    EXPECT_FALSE(table.free(first));
    EXPECT_EQ(table.error(), kErrorInvalidHandle);
    EXPECT_TRUE(table.stillMapped().empty());
}

TEST_F(LibraryTableTest, ANewLoadGivesANewHandle) {
    const HINSTANCE first = table.load(kResources);
    table.free(first);
    const HINSTANCE second = table.load(kResources);
    EXPECT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(table.symbol(first, kResourceDirectorySymbol), nullptr);
}

TEST_F(LibraryTableTest, CaseDoesNotCountInNames) {
    const HINSTANCE library = table.load(L"vxdashboardRES.DLL");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(table.find(kResources), library);
    EXPECT_EQ(table.fileName(library), "VxDashboardRes.dll");
}

TEST_F(LibraryTableTest, AMissingFileIsError2) {
    EXPECT_EQ(table.load(L"VxNothing.dll"), nullptr);
    EXPECT_EQ(table.error(), kErrorFileNotFound);
    EXPECT_NE(table.failureText().find("VxNothing.dll"), std::string::npos);
}

TEST_F(LibraryTableTest, ARoadOutOfTheFolderLeadsNowhere) {
    EXPECT_EQ(table.load(L"../bin/VxDashboardRes.dll"), nullptr);
    EXPECT_EQ(table.error(), kErrorFileNotFound);
    EXPECT_EQ(table.load(L""), nullptr);
    EXPECT_EQ(table.load(L".."), nullptr);
}

TEST_F(LibraryTableTest, AFileThatIsNoLibraryIsError193) {
    const support::TemporaryFolder folder;
    folder.write("Text.dll", "not a library");
    LibraryTable other(folder.path, faults());
    EXPECT_EQ(other.load(L"Text.dll"), nullptr);
    EXPECT_EQ(other.error(), kErrorBadLibrary);
    EXPECT_FALSE(other.failureText().empty());
}

TEST_F(LibraryTableTest, AHiddenLibraryIsNeitherLoadedNorFound) {
    const HINSTANCE open = table.load(kResources);
    faults().hide("VxDashboardRes.dll");
    EXPECT_EQ(table.load(kResources), nullptr);
    EXPECT_EQ(table.error(), kErrorFileNotFound);
    EXPECT_EQ(table.load(L"vxdashboardres.dll"), nullptr);
    EXPECT_EQ(table.find(kResources), nullptr);
    EXPECT_EQ(table.symbol(open, kResourceDirectorySymbol), nullptr);
    faults().unhide("VxDashboardRes.dll");
    EXPECT_EQ(table.find(kResources), open);
}

TEST_F(LibraryTableTest, AHiddenSymbolIsNotFound) {
    const HINSTANCE library = table.load(kResources);
    EXPECT_NE(table.symbol(library, kResourceDirectorySymbol), nullptr);
    faults().hide("VxDashboardRes.dll", kResourceDirectorySymbol);
    EXPECT_EQ(table.symbol(library, kResourceDirectorySymbol), nullptr);
    EXPECT_EQ(table.error(), kErrorSymbolNotFound);
    EXPECT_FALSE(table.resources(library).findString(203));
}

TEST_F(LibraryTableTest, ALibraryThatSomebodyElseHoldsIsReportedAsStillMapped) {
    const HINSTANCE library = table.load(kResources);
    libraries().load(kResources);
    table.free(library);
    EXPECT_EQ(table.stillMapped(), std::vector<std::string>{"VxDashboardRes.dll"});
}

}  // namespace workbench
