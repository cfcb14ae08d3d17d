#include "tests/workbench/loader/loader_fixture.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxut.h>
#include <hostapi/window.h>

namespace workbench {

using ModuleFunctionsTest = LoaderTest;

TEST_F(ModuleFunctionsTest, LibrariesAreReachedByTheFrameworksCalls) {
    const HINSTANCE library = LoadLibrary(kResources);
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(GetModuleHandle(kResources), library);
    EXPECT_NE(GetProcAddress(library, kResourceDirectorySymbol), nullptr);
    EXPECT_EQ(GetProcAddress(library, "nothing"), nullptr);
    EXPECT_EQ(GetLastError(), kErrorSymbolNotFound);
    EXPECT_NE(FreeLibrary(library), 0);
    EXPECT_EQ(FreeLibrary(library), 0);
    EXPECT_EQ(LoadLibrary(nullptr), nullptr);
}

TEST_F(ModuleFunctionsTest, AToldFailureSetsTheLastError) {
    faults().fail("LoadLibrary", {}, 1);
    EXPECT_EQ(LoadLibrary(kResources), nullptr);
    EXPECT_EQ(GetLastError(), kErrorFileNotFound);
    faults().fail("LoadLibrary", 193, 1);
    EXPECT_EQ(LoadLibrary(kResources), nullptr);
    EXPECT_EQ(GetLastError(), kErrorBadLibrary);
}

TEST_F(ModuleFunctionsTest, TheLastErrorCanBeSetAndHasWords) {
    SetLastError(2);
    EXPECT_EQ(GetLastError(), 2U);
    EXPECT_EQ(VxUt::GetSystemErrorMessage(2), L"The specified file cannot be found");
    EXPECT_EQ(VxUt::GetSystemErrorMessage(4711), L"Unknown error 4711");
}

TEST_F(ModuleFunctionsTest, AnIconComesAtItsNaturalSizeAndBelongsToTheCaller) {
    const HINSTANCE library = LoadLibrary(kResources);
    const HICON icon = LoadIcon(library, 220);
    ASSERT_NE(icon, nullptr);
    const SourcedPicture* icon32 = bench.windows().gdi().findIcon(icon);
    ASSERT_NE(icon32, nullptr);
    EXPECT_EQ(icon32->picture.width, 32U);
    EXPECT_EQ(icon32->source, "#220");
    EXPECT_NE(DestroyIcon(icon), 0);
    EXPECT_EQ(bench.windows().gdi().iconCount(), 0U);
}

TEST_F(ModuleFunctionsTest, AMissingIconIsNull) {
    const HINSTANCE library = LoadLibrary(kResources);
    EXPECT_EQ(LoadIcon(library, 221), nullptr);
    EXPECT_EQ(LoadIcon(nullptr, 220), nullptr);
    faults().fail("LoadIcon", {}, 1);
    EXPECT_EQ(LoadIcon(library, 220), nullptr);
}

}  // namespace workbench
