#include "tests/workbench/editor/editor_fixture.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/variables.h>

#include <cstdlib>

namespace workbench {

class VariableFunctionsTest : public EditorTest {
protected:
    int setShort(const wchar_t* name, std::int16_t value) {
        VxResultBuffer buffer;
        buffer.type = kRtShort;
        buffer.value.shortInt = value;
        return vxedSetVar(name, &buffer);
    }
};

TEST_F(VariableFunctionsTest, GetFillsTheBuffer) {
    VxResultBuffer buffer;
    EXPECT_EQ(vxedGetVar(L"laylockfadectl", &buffer), 5100);
    EXPECT_EQ(buffer.type, 5003);
    EXPECT_EQ(buffer.value.shortInt, 50);
}

TEST_F(VariableFunctionsTest, AStringIsHandedOver) {
    VxResultBuffer buffer;
    EXPECT_EQ(vxedGetVar(L"CPROFILE", &buffer), 5100);
    EXPECT_EQ(std::wstring(buffer.value.string), L"Default");
    std::free(buffer.value.string);
}

TEST_F(VariableFunctionsTest, WhatCannotBeReadIsNoSuccess) {
    VxResultBuffer buffer;
    EXPECT_NE(vxedGetVar(L"NONSENSE", &buffer), 5100);
    EXPECT_NE(vxedGetVar(L"TILEMODE", &buffer), 5100);
    EXPECT_NE(vxedGetVar(nullptr, &buffer), 5100);
    EXPECT_NE(vxedGetVar(L"LAYLOCKFADECTL", nullptr), 5100);
    EXPECT_EQ(buffer.type, 0);
}

TEST_F(VariableFunctionsTest, SetWritesWithinTheRange) {
    EXPECT_EQ(setShort(L"LAYLOCKFADECTL", 30), 5100);
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(30));
    EXPECT_NE(setShort(L"LAYLOCKFADECTL", 95), 5100);
    EXPECT_NE(setShort(L"CMDACTIVE", 1), 5100);
    EXPECT_NE(setShort(L"NONSENSE", 1), 5100);
    EXPECT_EQ(vxedSetVar(L"LAYLOCKFADECTL", nullptr), kRtError);
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(30));
}

TEST_F(VariableFunctionsTest, AFaultOfOneVariableLeavesTheOthers) {
    m_bench.faults().fail("vxedGetVar:LAYLOCKFADECTL", 17);
    VxResultBuffer buffer;
    EXPECT_EQ(vxedGetVar(L"laylockfadectl", &buffer), 17);
    EXPECT_EQ(vxedGetVar(L"CMDACTIVE", &buffer), 5100);
    m_bench.faults().fail("vxedGetVar");
    EXPECT_EQ(vxedGetVar(L"CMDACTIVE", &buffer), kRtError);
}

TEST_F(VariableFunctionsTest, AFaultOfAWriteIsToldAsAFailedChange) {
    m_bench.faults().fail("vxedSetVar", {}, 1);
    EXPECT_EQ(setShort(L"LAYLOCKFADECTL", 30), kRtError);
    m_bench.faults().fail("vxedSetVar:LAYLOCKFADECTL", 18, 1);
    EXPECT_EQ(setShort(L"LAYLOCKFADECTL", 30), 18);
    EXPECT_EQ(events(), (Lines{"will change LAYLOCKFADECTL", "unchanged LAYLOCKFADECTL",
                               "will change LAYLOCKFADECTL", "unchanged LAYLOCKFADECTL"}));
    EXPECT_EQ(setShort(L"LAYLOCKFADECTL", 30), 5100);
}

TEST_F(VariableFunctionsTest, NewBuffersAreZeroedAndReleasedWithTheirStrings) {
    VxResultBuffer* buffer = vxutNewRb(kRtString);
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(buffer->type, 5005);
    EXPECT_EQ(buffer->value.string, nullptr);
    buffer->value.string = static_cast<wchar_t*>(std::calloc(4, sizeof(wchar_t)));
    buffer->next = vxutNewRb(kRtReal);
    EXPECT_EQ(vxutRelRb(buffer), 5100);
    EXPECT_EQ(vxutRelRb(nullptr), 5100);
    m_bench.faults().fail("vxutNewRb");
    EXPECT_EQ(vxutNewRb(kRtShort), nullptr);
}

TEST_F(VariableFunctionsTest, AVariableOfTheDrawingIsWrittenUnderALockOnly) {
    Document& document = newDocument();
    events();
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtError);
    EXPECT_EQ(setShort(L"TILEMODE", 0), kRtError);
    EXPECT_EQ(setShort(L"PERSPECTIVE", 1), kRtError);
    EXPECT_EQ(events(),
              (Lines{"will change LUNITS", "unchanged LUNITS", "will change TILEMODE",
                     "unchanged TILEMODE", "will change PERSPECTIVE", "unchanged PERSPECTIVE"}));
    {
        const VxAxDocLock reading(document.database(), DocumentLocks::kRead);
        EXPECT_EQ(setShort(L"LUNITS", 4), kRtError);
    }
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    const VxAxDocLock lock(document.database(), DocumentLocks::kAutoWrite);
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtNorm);
    EXPECT_EQ(read(L"LUNITS"), Value(4));
}

TEST_F(VariableFunctionsTest, NothingIsWrittenInsideALockScopeThatWasRefused) {
    Document& document = newDocument();
    const VxAxDocLock exclusive(document.database(), DocumentLocks::kExclusiveWrite);
    {
        const VxAxDocLock refused(document.database(), DocumentLocks::kAutoWrite);
        m_bench.journal().take();
        EXPECT_EQ(setShort(L"LUNITS", 4), kRtError);
        EXPECT_EQ(fields("var", "name"), Lines{});
        EXPECT_EQ(read(L"LUNITS"), Value(2));
    }
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtNorm);
    EXPECT_EQ(read(L"LUNITS"), Value(4));
}

TEST_F(VariableFunctionsTest, TheLockMustBeThatOfTheCurrentDocument) {
    Document& first = newDocument(L"A");
    newDocument(L"B");
    const VxAxDocLock lock(first.database(), DocumentLocks::kAutoWrite);
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtError);
}

TEST_F(VariableFunctionsTest, ARunningCommandHasLockedItsDocument) {
    newDocument();
    editor().beginCommand(L"wait");
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtNorm);
}

TEST_F(VariableFunctionsTest, WhatBelongsToTheUserOrNoDrawingNeedsNoLock) {
    EXPECT_EQ(setShort(L"LUNITS", 4), kRtNorm);
    newDocument();
    EXPECT_EQ(setShort(L"LAYLOCKFADECTL", 30), kRtNorm);
}

TEST_F(VariableFunctionsTest, AVariableOfTypeLongIsReadAsLong) {
    newDocument();
    write(L"LUNITS", 4);
    VxResultBuffer buffer;
    EXPECT_EQ(vxedGetVar(L"UNDOSTEPS", &buffer), kRtNorm);
    EXPECT_EQ(buffer.type, kRtLong);
    EXPECT_EQ(buffer.value.longInt, 1);
}

}  // namespace workbench
