#pragma once

#include "workbench/drawing/database/status.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace workbench::drawing {

/// One change that can be taken back. Whoever keeps state that undo should restore derives from
/// it: the objects of the database do, system variables may.
class UndoRecord {
public:
    virtual ~UndoRecord() = default;

    /// Puts the recorded state back and keeps the state that it replaces, so that calling it
    /// again is the redo.
    virtual void exchange() = 0;
};

/// The changes of a drawing, grouped by the commands that made them. Undo and redo go by whole
/// groups.
class UndoLog {
public:
    /// Opens a group, named after the command. Groups nest: only the outermost counts.
    void beginGroup(std::string name);

    /// Closes the group that was opened last. A group without changes leaves no trace.
    void endGroup();

    /// The groups that are closed from now on, up to `endGesture`, become one: a drag writes often and
    /// is one step. Gestures nest: only the outermost counts. `Continue` adds to the group of the
    /// gesture before unless another one was closed, taken back or brought again since.
    enum class Gesture { New, Continue };
    void beginGesture(Gesture gesture = Gesture::New);
    void endGesture();
    /// What follows is a step of its own, also in the middle of a gesture.
    void interruptGesture() { m_gestureGroup = 0; }

    bool isGroupOpen() const { return m_depth > 0; }

    /// Takes a change that has just been made; whatever could have been redone is forgotten.
    /// Outside any group the change is a group of its own. While undo or redo is under way
    /// nothing is recorded: the change is dropped.
    void add(std::unique_ptr<UndoRecord> record);

    /// Takes back the last group, its changes in reverse order.
    Status undo();

    /// Makes the changes of the group that was taken back last again, in their order.
    Status redo();

    /// How many groups `undo` could take back one after the other.
    std::size_t undoCount() const { return m_done.size(); }
    bool canUndo() const { return !m_done.empty(); }
    bool canRedo() const { return !m_undone.empty(); }

    /// Name of the group that `undo` or `redo` would take; empty when there is none.
    std::string undoName() const;
    std::string redoName() const;

    /// True while `undo` runs.
    bool isUndoing() const { return m_running == Running::Undo; }

    /// True while `undo` or `redo` runs.
    bool isRunning() const { return m_running != Running::None; }

    /// The number of the group that `undo` would take, different for each group of the log and kept
    /// through undo and redo; 0 for none.
    std::size_t lastGroup() const { return m_done.empty() ? 0 : m_done.back().number; }
    /// Makes one group of the last two, under the earlier one's number; nothing if there are not two.
    void joinLastTwo();

    /// Forgets everything, for instance after a drawing was read.
    void clear();

private:
    enum class Running { None, Undo, Redo };

    struct Group {
        std::string name;
        std::vector<std::unique_ptr<UndoRecord>> records;
        std::size_t number = 0;  // given when the group is closed
    };

    void joinGesture();

    std::vector<Group> m_done;
    std::vector<Group> m_undone;
    Group m_open;  // the group being filled while m_depth > 0
    std::size_t m_depth = 0;
    std::size_t m_groups = 0;        // that were ever closed
    int m_gestures = 0;              // nested ones that are under way
    std::size_t m_gestureGroup = 0;  // number of the present or last gesture's; 0: it has none
    Running m_running = Running::None;
};

/// Holds a group open for the length of a scope.
class UndoGroup {
public:
    UndoGroup(UndoLog& log, std::string name) : m_log(log) { m_log.beginGroup(std::move(name)); }
    ~UndoGroup() { m_log.endGroup(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

private:
    UndoLog& m_log;
};

}  // namespace workbench::drawing
