#include "workbench/drawing/database/undo_log.h"

#include <gtest/gtest.h>

#include <utility>

namespace workbench::drawing {
namespace {

/// A variable kept outside the database, as a system variable would be.
class Foreign final : public UndoRecord {
public:
    Foreign(int& place, int before) : m_place(place), m_other(before) {}
    void exchange() override { std::swap(m_place, m_other); }

private:
    int& m_place;
    int m_other;
};

class UndoLogTest : public testing::Test {
protected:
    void write(int value) {
        m_log.add(std::make_unique<Foreign>(m_value, m_value));
        m_value = value;
    }

    UndoLog m_log;
    int m_value = 0;
};

TEST_F(UndoLogTest, ForeignStateIsRestoredAndRedone) {
    write(5);
    EXPECT_EQ(m_log.undo(), Status::Ok);
    EXPECT_EQ(m_value, 0);
    EXPECT_EQ(m_log.redo(), Status::Ok);
    EXPECT_EQ(m_value, 5);
}

TEST_F(UndoLogTest, GroupIsTakenBackAsOneInReverseOrder) {
    {
        const UndoGroup group(m_log, "MOVE");
        write(1);
        write(2);
        const UndoGroup nested(m_log, "inner");
        write(3);
    }
    EXPECT_EQ(m_log.undoName(), "MOVE");
    EXPECT_EQ(m_log.undo(), Status::Ok);
    EXPECT_EQ(m_value, 0);
    EXPECT_EQ(m_log.redoName(), "MOVE");
    EXPECT_EQ(m_log.undo(), Status::NothingToUndo);
    EXPECT_EQ(m_log.redo(), Status::Ok);
    EXPECT_EQ(m_value, 3);
}

TEST_F(UndoLogTest, NewChangeForgetsWhatCouldBeRedone) {
    write(1);
    m_log.undo();
    write(7);
    EXPECT_FALSE(m_log.canRedo());
    EXPECT_EQ(m_log.redo(), Status::NothingToRedo);
    EXPECT_EQ(m_value, 7);
}

TEST_F(UndoLogTest, EmptyGroupLeavesNoTrace) {
    write(1);
    m_log.undo();
    { const UndoGroup group(m_log, "LOOK"); }
    EXPECT_FALSE(m_log.canUndo());
    EXPECT_TRUE(m_log.canRedo());
}

TEST_F(UndoLogTest, GroupKeepsItsNumberThroughUndoAndRedo) {
    EXPECT_EQ(m_log.lastGroup(), 0U);
    write(1);
    const std::size_t first = m_log.lastGroup();
    EXPECT_NE(first, 0U);
    write(2);
    const std::size_t second = m_log.lastGroup();
    EXPECT_NE(second, first);
    m_log.undo();
    EXPECT_EQ(m_log.lastGroup(), first);
    m_log.redo();
    EXPECT_EQ(m_log.lastGroup(), second);
    m_log.undo();
    write(3);
    EXPECT_NE(m_log.lastGroup(), second);
}

TEST_F(UndoLogTest, JoinedGroupsAreTakenBackAsOneUnderTheEarlierNumber) {
    m_log.joinLastTwo();
    write(1);
    m_log.joinLastTwo();
    EXPECT_EQ(m_log.undo(), Status::Ok);
    write(1);
    write(2);
    const std::size_t second = m_log.lastGroup();
    write(3);
    m_log.joinLastTwo();
    EXPECT_EQ(m_log.lastGroup(), second);
    EXPECT_EQ(m_log.undo(), Status::Ok);
    EXPECT_EQ(m_value, 1);
    EXPECT_EQ(m_log.redo(), Status::Ok);
    EXPECT_EQ(m_value, 3);
}

TEST_F(UndoLogTest, GroupsOfAGestureAreOne) {
    write(1);
    m_log.beginGesture();
    write(2);
    write(3);
    m_log.endGesture();
    write(4);
    EXPECT_EQ(m_log.undoCount(), 3U);
    m_log.undo();
    EXPECT_EQ(m_value, 3);
    m_log.undo();
    EXPECT_EQ(m_value, 1);
    m_log.redo();
    EXPECT_EQ(m_value, 3);
}

TEST_F(UndoLogTest, OnlyTheOutermostGestureCounts) {
    m_log.beginGesture();
    write(1);
    m_log.beginGesture();
    write(2);
    m_log.endGesture();
    write(3);
    m_log.endGesture();
    m_log.endGesture();
    EXPECT_EQ(m_log.undoCount(), 1U);
    m_log.beginGesture();
    write(4);
    m_log.endGesture();
    EXPECT_EQ(m_log.undoCount(), 2U);
}

TEST_F(UndoLogTest, AGestureContinuesTheOneBeforeUnlessSomethingCameBetween) {
    const auto turn = [this](int value) {
        m_log.beginGesture(UndoLog::Gesture::Continue);
        write(value);
        m_log.endGesture();
    };
    turn(1);
    turn(2);
    EXPECT_EQ(m_log.undoCount(), 1U);
    write(3);
    turn(4);
    EXPECT_EQ(m_log.undoCount(), 3U);
    m_log.undo();
    turn(5);
    EXPECT_EQ(m_log.undoCount(), 3U);
    m_log.interruptGesture();
    turn(6);
    EXPECT_EQ(m_log.undoCount(), 4U);
}

TEST_F(UndoLogTest, InTheMiddleOfAGroupNothingIsUndone) {
    write(1);
    const UndoGroup group(m_log, "LINE");
    EXPECT_EQ(m_log.undo(), Status::GroupIsOpen);
    EXPECT_EQ(m_log.redo(), Status::GroupIsOpen);
    EXPECT_EQ(m_value, 1);
}

/// Writes to the log out of an undo, as a reactor might.
class Meddler final : public UndoRecord {
public:
    explicit Meddler(UndoLog& log) : m_log(log) {}
    void exchange() override {
        EXPECT_TRUE(m_log.isRunning());
        m_log.add(std::make_unique<Foreign>(m_scratch, 0));
    }

private:
    UndoLog& m_log;
    int m_scratch = 0;
};

TEST_F(UndoLogTest, ChangesMadeByAnUndoAreNotRecorded) {
    m_log.add(std::make_unique<Meddler>(m_log));
    m_log.undo();
    EXPECT_FALSE(m_log.canUndo());
    EXPECT_TRUE(m_log.canRedo());
    EXPECT_FALSE(m_log.isUndoing());
}

}  // namespace
}  // namespace workbench::drawing
