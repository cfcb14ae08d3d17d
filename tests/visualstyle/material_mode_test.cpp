#include "tests/support/bench.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/lookup.h"

#include <string>

namespace {

struct ModeCase {
    int mode;
    const wchar_t* tool;
};

class MaterialModeTest : public support::Bench {
protected:
    void SetUp() override { showDashboard(); }
    std::wstring tool() { return workbench::viewOf(bench().toolkit(), *item(L"TPL_0023")).tool; }
    /// How often the mode was read since the last look at the journal.
    int reads() {
        int count = 0;
        for (const workbench::JournalRecord& record : takeJournal("call")) {
            if (record.field("name") == workbench::Value("vxedGetVar") &&
                record.field("args").asList().front() == workbench::Value("VSMATERIALMODE"))
                ++count;
        }
        return count;
    }
};

class MaterialModeValueTest : public MaterialModeTest,
                              public testing::WithParamInterface<ModeCase> {};

TEST_P(MaterialModeValueTest, IsTheFlyoutsCurrentTool) {
    set(L"VSMATERIALMODE", GetParam().mode == 1 ? 0 : 1);
    set(L"VSMATERIALMODE", GetParam().mode);
    EXPECT_EQ(tool(), GetParam().tool);
}

INSTANTIATE_TEST_SUITE_P(Modes, MaterialModeValueTest,
                         testing::Values(ModeCase{0, L"ID_VSMM0"}, ModeCase{1, L"ID_VSMM1"},
                                         ModeCase{2, L"ID_VSMM2"}));

class ForeignModeTest : public MaterialModeTest, public testing::WithParamInterface<int> {};

TEST_P(ForeignModeTest, LeavesTheFlyoutAlone) {
    set(L"VSMATERIALMODE", 2);
    set(L"VSMATERIALMODE", GetParam());
    EXPECT_EQ(tool(), L"ID_VSMM2");
}

INSTANTIATE_TEST_SUITE_P(Values, ForeignModeTest, testing::Values(3, 4, -1));

struct NameCase {
    const wchar_t* name;
    int reads;
};
class MaterialModeNameTest : public MaterialModeTest,
                             public testing::WithParamInterface<NameCase> {};

TEST_P(MaterialModeNameTest, ReadsTheModeOrNot) {
    set(L"LTSCALE", 2.0);
    takeJournal();
    bench().editor().reactors().sysVarChanged(GetParam().name, true);
    EXPECT_EQ(reads(), GetParam().reads);
    bench().editor().reactors().commandEnded(GetParam().name);
    EXPECT_EQ(reads(), GetParam().reads);
}

INSTANTIATE_TEST_SUITE_P(Names, MaterialModeNameTest,
                         testing::Values(NameCase{L"VSMATERIALMODE", 1}, NameCase{L"VSCURRENT", 1},
                                         NameCase{L"vscurrent", 1}, NameCase{L"vsMaterialMode", 1},
                                         NameCase{L"LTSCALE", 0}, NameCase{L"VSMATERIALMODES", 0},
                                         NameCase{L"", 0}));

TEST_F(MaterialModeTest, UnreadableModeCountsAsZero) {
    set(L"VSMATERIALMODE", 2);
    fail("vxedGetVar:VSMATERIALMODE");
    bench().editor().reactors().sysVarChanged(L"VSMATERIALMODE", true);
    EXPECT_EQ(tool(), L"ID_VSMM0");
}

TEST_F(MaterialModeTest, FirstChangeAfterEachLoadReadsItOnceWhateverTheName) {
    ASSERT_TRUE(unload());
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(load());
        takeJournal();
        bench().editor().reactors().sysVarChanged(L"LTSCALE", true);
        EXPECT_EQ(reads(), 1);
        bench().editor().reactors().sysVarChanged(L"LTSCALE", true);
        EXPECT_EQ(reads(), 0);
        ASSERT_TRUE(unload());
    }
}

TEST_F(MaterialModeTest, FirstCommandEndAfterALoadReadsItInPlaceOfAChange) {
    ASSERT_TRUE(unload());
    ASSERT_TRUE(load());
    takeJournal();
    bench().editor().reactors().commandEnded(L"LINE");
    EXPECT_EQ(reads(), 1);
    bench().editor().reactors().commandEnded(L"LINE");
    EXPECT_EQ(reads(), 0);
    bench().editor().reactors().sysVarChanged(L"LTSCALE", true);
    EXPECT_EQ(reads(), 0);
}

}  // namespace
