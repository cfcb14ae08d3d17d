#include "controls/variable_access.h"

#include "controls/doc_lock.h"
#include "core/host_objects.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/heap_use.h"
#include "workbench/base/text.h"
#include "workbench/editor/editor.h"

#include <hostapi/zorq/documents.h>

namespace {

class VariableAccessTest : public PaletteTest {
protected:
    void SetUp() override { load(); }
    void set(const wchar_t* name, const workbench::Value& value) {
        ASSERT_TRUE(workbench::Workbench::current().editor().set(name, value));
    }
    void fail(const char* call, int status) {
        workbench::Workbench::current().faults().fail(call, status);
    }
};

TEST_F(VariableAccessTest, StrictReadTakesEachTypeOfNumber) {
    set(L"LAYLOCKFADECTL", -30);
    EXPECT_EQ(readVariableStrict(L"LAYLOCKFADECTL"), -30);
    set(L"STEPSIZE", 7.9);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), 7) << "a real is truncated toward zero";
    set(L"STEPSIZE", -7.9);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), -7) << "from below too";
}

TEST_F(VariableAccessTest, StrictReadTakesALong) {
    workbench::Workbench::current().editor().documents().create(L"A");
    EXPECT_EQ(readVariableStrict(L"UNDOSTEPS"), 0);
    set(L"LUNITS", 4);
    EXPECT_EQ(readVariableStrict(L"UNDOSTEPS"), 1);
}

TEST_F(VariableAccessTest, StrictReadOfARealBeyondAWholeNumberIsMinusOne) {
    set(L"STEPSIZE", 2147483647.5);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), -1);
    set(L"STEPSIZE", 2147483647.0);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), 2147483647);
    set(L"STEPSIZE", -2147483648.0);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), -2147483647 - 1);
    set(L"STEPSIZE", -2147483649.0);
    EXPECT_EQ(readVariableStrict(L"STEPSIZE"), -1);
}

TEST_F(VariableAccessTest, StrictReadOfATextOrOfNothingIsMinusOne) {
    EXPECT_EQ(readVariableStrict(L"CPROFILE"), -1);
    EXPECT_EQ(readVariableStrict(L"NOSUCHVARIABLE"), -1);
}

TEST_F(VariableAccessTest, FlagReadOfNothingIsZero) {
    EXPECT_EQ(readVariableFlag(L"NOSUCHVARIABLE"), 0);
    set(L"TILEMODE", 1);
    EXPECT_EQ(readVariableFlag(L"TILEMODE"), 1);
}

TEST_F(VariableAccessTest, TextReadTakesTextsOnly) {
    EXPECT_EQ(readVariableText(L"CPROFILE"),
              workbench::toWide(bench().editor().read(L"CPROFILE").asString()));
    EXPECT_FALSE(readVariableText(L"TILEMODE").has_value());
    EXPECT_FALSE(readVariableText(L"NOSUCHVARIABLE").has_value());
}

class TextMemoryTest : public VariableAccessTest,
                       public testing::WithParamInterface<void (*)(const wchar_t*)> {};

TEST_P(TextMemoryTest, IsGivenBack) {
    constexpr std::size_t kReads = 1000;
    const auto readOften = [] {
        for (std::size_t i = 0; i < kReads; ++i)
            GetParam()(L"CPROFILE");
    };
    bench().journal().setRecording(false);
    readOften();
    const std::size_t before = support::heapBytesTaken();
    readOften();
    EXPECT_LT(support::heapBytesTaken(), before + kReads);
}

INSTANTIATE_TEST_SUITE_P(Reads, TextMemoryTest,
                         testing::Values([](const wchar_t* name) { readVariableText(name); },
                                         [](const wchar_t* name) { readVariableStrict(name); }));

TEST_F(VariableAccessTest, WriteGoesThrough) {
    const VxAxDocLock lock(workingDatabase(), kLockForWrite);
    writeVariableShort(L"LAYLOCKFADECTL", 12);
    EXPECT_EQ(readVariableStrict(L"LAYLOCKFADECTL"), 12);
    writeVariableReal(L"STEPSIZE", 0.25);
    EXPECT_EQ(bench().editor().read(L"STEPSIZE"), workbench::Value(0.25));
}

TEST_F(VariableAccessTest, ShortReadLooksAtTheValueAlone) {
    set(L"LAYLOCKFADECTL", -30);
    EXPECT_EQ(readVariableShort(L"LAYLOCKFADECTL"), -30);
    EXPECT_EQ(readVariableShort(L"NOSUCHVARIABLE"), 0);
}

class FailedReadTest : public VariableAccessTest, public testing::WithParamInterface<int> {};

TEST_P(FailedReadTest, IsMinusOneStrictlyAndZeroAsAFlag) {
    set(L"LAYLOCKFADECTL", 30);
    fail("vxedGetVar:LAYLOCKFADECTL", GetParam());
    EXPECT_EQ(readVariableStrict(L"LAYLOCKFADECTL"), -1);
    EXPECT_EQ(readVariableFlag(L"LAYLOCKFADECTL"), 0);
    EXPECT_EQ(readVariableShort(L"LAYLOCKFADECTL"), 0);
}

INSTANTIATE_TEST_SUITE_P(Statuses, FailedReadTest, testing::Values(-5001, 0, -1, 5000));

TEST_F(VariableAccessTest, RefusedWriteIsPassedOver) {
    set(L"LAYLOCKFADECTL", 30);
    fail("vxedSetVar:LAYLOCKFADECTL", -5001);
    writeVariableShort(L"LAYLOCKFADECTL", 12);
    EXPECT_EQ(readVariableStrict(L"LAYLOCKFADECTL"), 30);
}

}  // namespace
