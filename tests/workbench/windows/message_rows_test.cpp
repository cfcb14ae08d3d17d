#include "workbench/windows/message_rows.h"

#include <gtest/gtest.h>

#include <iterator>

namespace workbench {

namespace {

constexpr UINT kOnlyBase = 2001;
constexpr UINT kBoth = 2002;
constexpr UINT kOnlyDerived = 2003;
constexpr UINT kUnknown = 2004;

LRESULT unused(CWnd*, WPARAM, LPARAM) {
    return 0;
}

constexpr MessageEntry kBaseRows[] = {
    {WM_COMMAND, unused, 100, 199},
    {kOnlyBase, unused},
    {kBoth, unused},
};
constexpr MessageEntry kDerivedRows[] = {
    {WM_COMMAND, unused, 150, 160},
    {WM_COMMAND, unused, 170, 170},
    {kBoth, unused},
    {kOnlyDerived, unused},
};

constexpr MessageMap kBase{nullptr, kBaseRows, std::size(kBaseRows)};
constexpr MessageMap kEmpty{[]() -> const MessageMap& { return kBase; }, nullptr, 0};
constexpr MessageMap kDerived{[]() -> const MessageMap& { return kEmpty; }, kDerivedRows,
                              std::size(kDerivedRows)};

void expectNone(const FoundRow& found) {
    EXPECT_EQ(found.row, nullptr);
    EXPECT_EQ(found.holder, nullptr);
}

}  // namespace

TEST(MessageRowsTest, TheNearestTableOfTheChainHasTheSay) {
    MessageRows rows;
    EXPECT_EQ(rows.find(kDerived, kOnlyDerived).row, &kDerivedRows[3]);
    EXPECT_EQ(rows.find(kDerived, kBoth).row, &kDerivedRows[2]);
    EXPECT_EQ(rows.find(kDerived, kBoth).holder, &kDerived);
    EXPECT_EQ(rows.find(kDerived, kOnlyBase).row, &kBaseRows[1]);
    EXPECT_EQ(rows.find(kDerived, kOnlyBase).holder, &kBase);
    EXPECT_EQ(rows.find(kEmpty, kBoth).row, &kBaseRows[2]);
    expectNone(rows.find(kBase, kOnlyDerived));
    expectNone(rows.find(kDerived, kUnknown));
}

TEST(MessageRowsTest, ACommandIsFoundInTheNearestRangeThatHoldsIt) {
    EXPECT_EQ(MessageRows::searchCommand(kDerived, 150).row, &kDerivedRows[0]);
    EXPECT_EQ(MessageRows::searchCommand(kDerived, 160).row, &kDerivedRows[0]);
    EXPECT_EQ(MessageRows::searchCommand(kDerived, 161).row, &kBaseRows[0]);
    EXPECT_EQ(MessageRows::searchCommand(kDerived, 170).row, &kDerivedRows[1]);
    EXPECT_EQ(MessageRows::searchCommand(kDerived, 199).holder, &kBase);
    expectNone(MessageRows::searchCommand(kDerived, 99));
    expectNone(MessageRows::searchCommand(kDerived, 200));
}

TEST(MessageRowsTest, WhatWasFoundIsRememberedUntilItIsForgotten) {
    MessageRows rows;
    MessageMap map{nullptr, kBaseRows, std::size(kBaseRows)};
    EXPECT_EQ(rows.find(map, kBoth).row, &kBaseRows[2]);
    expectNone(rows.find(map, kOnlyDerived));
    map = {nullptr, kDerivedRows, std::size(kDerivedRows)};
    EXPECT_EQ(rows.find(map, kBoth).row, &kBaseRows[2]);
    expectNone(rows.find(map, kOnlyDerived));
    rows.forget();
    EXPECT_EQ(rows.find(map, kBoth).row, &kDerivedRows[2]);
    EXPECT_EQ(rows.find(map, kOnlyDerived).row, &kDerivedRows[3]);
}

TEST(MessageRowsTest, ManyMessagesKeepTheirOwnRows) {
    constexpr UINT kFirst = 3000;
    constexpr UINT kCount = 1000;  // more than are remembered at once
    MessageEntry entries[kCount];
    for (UINT i = 0; i < kCount; ++i)
        entries[i] = {kFirst + i, unused};
    const MessageMap map{nullptr, entries, kCount};
    MessageRows rows;
    for (int round = 0; round < 2; ++round) {
        for (UINT i = 0; i < kCount; ++i)
            ASSERT_EQ(rows.find(map, kFirst + i).row, &entries[i]);
    }
}

}  // namespace workbench
