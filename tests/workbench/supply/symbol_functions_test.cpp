#include "tests/workbench/editor/editor_fixture.h"

#include <hostapi/vxdb18/symbol_utilities.h>

namespace workbench {

class SymbolFunctionsTest : public EditorTest {
protected:
    SymbolFunctionsTest() : document(newDocument()) {}

    static const VxDbSymbolUtilities::Services& services() {
        return *VxDbSymbolUtilities::servicesPtr();
    }
    VxDbDatabase* database() { return &document.hostDatabase(); }

    Document& document;
};

TEST_F(SymbolFunctionsTest, NamesAreLongUnlessTheDrawingSaysOtherwise) {
    bool extended = false;
    EXPECT_EQ(vxdbGetExtnames(database(), extended), 0);
    EXPECT_TRUE(extended);
    EXPECT_FALSE(services().compatibilityMode(database()));
    EXPECT_TRUE(write(L"EXTNAMES", 0));
    EXPECT_FALSE(write(L"EXTNAMES", 2));
    EXPECT_EQ(vxdbGetExtnames(database(), extended), 0);
    EXPECT_FALSE(extended);
    EXPECT_TRUE(services().compatibilityMode(database()));
}

TEST_F(SymbolFunctionsTest, EachDrawingHasItsOwnRule) {
    write(L"EXTNAMES", 0);
    newDocument(L"B");
    EXPECT_TRUE(services().compatibilityMode(database()));
    EXPECT_FALSE(services().compatibilityMode(&editor().documents().current()->hostDatabase()));
}

TEST_F(SymbolFunctionsTest, WithoutADatabaseTheAnswerIsLeftAlone) {
    bool extended = false;
    EXPECT_EQ(vxdbGetExtnames(nullptr, extended), 124);
    EXPECT_FALSE(extended);
    EXPECT_FALSE(services().compatibilityMode(nullptr));
}

TEST_F(SymbolFunctionsTest, EachProblemHasItsStatus) {
    const auto check = [](const std::wstring& name, bool compatible) {
        return services().validateSymbolName(name.c_str(), true, false, compatible);
    };
    EXPECT_EQ(check(L"a b", false), 0);
    EXPECT_EQ(check(L"a b", true), 0);
    EXPECT_EQ(check(L"a*b", false), 3);
    EXPECT_EQ(check(L"a&b", false), 0);
    EXPECT_EQ(check(L"a&b", true), 3);
    EXPECT_EQ(check(std::wstring(256, L'a'), false), 160);
    EXPECT_EQ(check(std::wstring(32, L'a'), true), 160);
    EXPECT_EQ(check(L"", false), 352);
    EXPECT_EQ(services().validateSymbolName(nullptr, true, false, false), 352);
    EXPECT_EQ(services().validateSymbolName(L"a b", false, false, true), 3);
    EXPECT_EQ(services().validateSymbolName(L"a|b", true, true, false), 0);
}

TEST_F(SymbolFunctionsTest, TheCallsCanBeToldToFail) {
    bool extended = false;
    m_bench.faults().fail("vxdbGetExtnames", 9, 1);
    EXPECT_EQ(vxdbGetExtnames(database(), extended), 9);
    EXPECT_FALSE(extended);
    m_bench.faults().fail("VxDbSymbolUtilities::validateSymbolName", 77, 1);
    EXPECT_EQ(services().validateSymbolName(L"a", true, false, false), 77);
    write(L"EXTNAMES", 0);
    m_bench.faults().fail("VxDbSymbolUtilities::compatibilityMode", {}, 1);
    EXPECT_FALSE(services().compatibilityMode(database()));
    m_bench.faults().fail("VxDbSymbolUtilities::servicesPtr", {}, 1);
    EXPECT_EQ(VxDbSymbolUtilities::servicesPtr(), nullptr);
}

}  // namespace workbench
