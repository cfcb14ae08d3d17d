#include "tests/support/call_lines.h"
#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/records/entity.h"

#include <hostapi/zorq/selection.h>

namespace workbench {

class SelectionFunctionsTest : public EditorTest {
protected:
    SelectionFunctionsTest() : m_document(newDocument()) {
        run(L"_line\n0,0\n1,0\n2,0\n\n");
        m_ids = m_document.data().ids(drawing::RecordKind::Entity);
    }

    /// Has the user pick entities of these numbers, and asks for them.
    int pick(const std::vector<drawing::ObjectId>& ids, VxEdName& set) {
        Value::List numbers;
        for (const drawing::ObjectId id : ids)
            numbers.emplace_back(static_cast<std::int64_t>(id.handle()));
        editor().answers().queue("select", numbers);
        return vxedSSGet(nullptr, nullptr, nullptr, nullptr, set);
    }

    Document& m_document;
    std::vector<drawing::ObjectId> m_ids;
};

TEST_F(SelectionFunctionsTest, WhatTheUserPicksIsWalkedByNames) {
    VxEdName set;
    ASSERT_EQ(pick({m_ids[1], m_ids[0]}, set), kRtNorm);
    std::int32_t length = 0;
    EXPECT_EQ(vxedSSLength(set, &length), kRtNorm);
    EXPECT_EQ(length, 2);
    for (std::int32_t i = 0; i < length; ++i) {
        VxEdName name;
        VxDbObjectId id;
        EXPECT_EQ(vxedSSName(set, i, name), kRtNorm);
        EXPECT_EQ(vxdbGetObjectId(id, name), 0);
        EXPECT_EQ(fromHostId(id), m_ids[static_cast<std::size_t>(1 - i)]);
    }
    EXPECT_EQ(vxedSSFree(set), kRtNorm);
}

TEST_F(SelectionFunctionsTest, OutsideOfTheSetThereIsNoName) {
    VxEdName set;
    ASSERT_EQ(pick({m_ids[0]}, set), kRtNorm);
    VxEdName name = set;
    EXPECT_EQ(vxedSSName(set, -1, name), kRtError);
    EXPECT_EQ(vxedSSName(set, 1, name), kRtError);
    EXPECT_EQ(name, set);
    EXPECT_EQ(vxedSSLength(set, nullptr), kRtError);
}

TEST_F(SelectionFunctionsTest, AFreedSetIsRefused) {
    VxEdName set;
    ASSERT_EQ(pick({m_ids[0]}, set), kRtNorm);
    EXPECT_EQ(vxedSSFree(set), kRtNorm);
    std::int32_t length = 7;
    VxEdName name;
    EXPECT_EQ(vxedSSFree(set), kRtError);
    EXPECT_EQ(vxedSSLength(set, &length), kRtError);
    EXPECT_EQ(vxedSSName(set, 0, name), kRtError);
    EXPECT_EQ(length, 7);
}

TEST_F(SelectionFunctionsTest, ACancelAnEmptyPickAndAFullHostGiveNoSet) {
    VxEdName set;
    EXPECT_EQ(vxedSSGet(nullptr, nullptr, nullptr, nullptr, set), kRtError);
    EXPECT_EQ(pick({}, set), kRtError);
    EXPECT_EQ(set, VxEdName());
    for (std::size_t i = 0; i < SelectionSets::kMostSets; ++i)
        EXPECT_EQ(pick({m_ids[0]}, set), kRtNorm);
    EXPECT_EQ(pick({m_ids[0]}, set), kRtError);
}

TEST_F(SelectionFunctionsTest, OnlyTheUsersOwnPickIsOffered) {
    VxEdName set;
    const int anything = 0;
    const VxResultBuffer filter;
    EXPECT_EQ(vxedSSGet(L"X", nullptr, nullptr, nullptr, set), kRtError);
    EXPECT_EQ(vxedSSGet(nullptr, &anything, nullptr, nullptr, set), kRtError);
    EXPECT_EQ(vxedSSGet(nullptr, nullptr, &anything, nullptr, set), kRtError);
    EXPECT_EQ(vxedSSGet(nullptr, nullptr, nullptr, &filter, set), kRtError);
    EXPECT_EQ(fields("output", "text"), Lines{});
}

TEST_F(SelectionFunctionsTest, WithoutADocumentNobodyIsAsked) {
    editor().documents().close(m_document);
    VxEdName set;
    EXPECT_EQ(vxedSSGet(nullptr, nullptr, nullptr, nullptr, set), kRtError);
    EXPECT_EQ(fields("output", "text"), Lines{});
}

TEST_F(SelectionFunctionsTest, ANameWithoutAnEntityLeavesTheIdAlone) {
    VxDbObjectId id{5};
    EXPECT_EQ(vxdbGetObjectId(id, VxEdName()), 2);
    EXPECT_EQ(
        vxdbGetObjectId(id, nameOfEntity(m_document.data().first(drawing::RecordKind::Layer))), 2);
    const VxEdName name = nameOfEntity(m_ids[0]);
    editor().documents().close(m_document);
    EXPECT_EQ(vxdbGetObjectId(id, name), 2);
    EXPECT_EQ(id.number, 5U);
}

TEST_F(SelectionFunctionsTest, EachCallIsNotedAndCanBeToldToFail) {
    VxEdName set;
    std::int32_t length = 0;
    VxEdName name;
    VxDbObjectId id;
    ASSERT_EQ(pick({m_ids[0]}, set), kRtNorm);
    m_bench.journal().take();
    for (const char* call :
         {"vxedSSGet", "vxedSSLength", "vxedSSName", "vxedSSFree", "vxdbGetObjectId"})
        m_bench.faults().fail(call, 8, 1);
    EXPECT_EQ(vxedSSGet(nullptr, nullptr, nullptr, nullptr, set), 8);
    EXPECT_EQ(vxedSSLength(set, &length), 8);
    EXPECT_EQ(vxedSSName(set, 0, name), 8);
    EXPECT_EQ(vxedSSFree(set), 8);
    EXPECT_EQ(vxdbGetObjectId(id, nameOfEntity(m_ids[0])), 8);
    const std::string number = std::to_string(nameOfEntity(m_ids[0]).number[0]);
    EXPECT_EQ(support::callLines(m_bench.journal().take()),
              (Lines{"vxedSSGet(null, null, null, null)", "vxedSSLength(1)", "vxedSSName(1, 0)",
                     "vxedSSFree(1)", "vxdbGetObjectId(" + number + ")"}));
    EXPECT_EQ(vxedSSLength(set, &length), kRtNorm);
}

}  // namespace workbench
