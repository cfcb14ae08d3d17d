#include "workbench/drawing/database/undo_log.h"

#include <utility>

namespace workbench::drawing {

void UndoLog::beginGroup(std::string name) {
    if (m_depth++ == 0) {
        m_open = Group{};
        m_open.name = std::move(name);
    }
}

void UndoLog::joinLastTwo() {
    if (m_done.size() < 2)
        return;
    Group last = std::move(m_done.back());
    m_done.pop_back();
    for (std::unique_ptr<UndoRecord>& record : last.records)
        m_done.back().records.push_back(std::move(record));
}

void UndoLog::endGroup() {
    if (m_depth == 0 || --m_depth > 0) {
        return;
    }
    if (!m_open.records.empty()) {
        m_open.number = ++m_groups;
        m_done.push_back(std::move(m_open));
        joinGesture();
    }
    m_open = Group{};
}

void UndoLog::beginGesture(Gesture gesture) {
    if (m_gestures++ == 0 && gesture == Gesture::New)
        m_gestureGroup = 0;
}

void UndoLog::endGesture() {
    if (m_gestures > 0)
        --m_gestures;
}

/// The last group becomes part of the gesture that is under way.
void UndoLog::joinGesture() {
    if (m_gestures == 0)
        return;
    const std::size_t count = m_done.size();
    if (m_gestureGroup != 0 && count > 1 && m_done[count - 2].number == m_gestureGroup)
        joinLastTwo();
    m_gestureGroup = lastGroup();
}

void UndoLog::add(std::unique_ptr<UndoRecord> record) {
    if (isRunning()) {
        return;
    }
    m_undone.clear();
    const UndoGroup own(*this, std::string());
    m_open.records.push_back(std::move(record));
}

Status UndoLog::undo() {
    if (isGroupOpen() || isRunning()) {
        return Status::GroupIsOpen;
    }
    if (m_done.empty()) {
        return Status::NothingToUndo;
    }
    interruptGesture();
    Group group = std::move(m_done.back());
    m_done.pop_back();
    m_running = Running::Undo;
    for (auto record = group.records.rbegin(); record != group.records.rend(); ++record) {
        (*record)->exchange();
    }
    m_running = Running::None;
    m_undone.push_back(std::move(group));
    return Status::Ok;
}

Status UndoLog::redo() {
    if (isGroupOpen() || isRunning()) {
        return Status::GroupIsOpen;
    }
    if (m_undone.empty()) {
        return Status::NothingToRedo;
    }
    interruptGesture();
    Group group = std::move(m_undone.back());
    m_undone.pop_back();
    m_running = Running::Redo;
    for (const auto& record : group.records) {
        record->exchange();
    }
    m_running = Running::None;
    m_done.push_back(std::move(group));
    return Status::Ok;
}

std::string UndoLog::undoName() const {
    return m_done.empty() ? std::string() : m_done.back().name;
}

std::string UndoLog::redoName() const {
    return m_undone.empty() ? std::string() : m_undone.back().name;
}

void UndoLog::clear() {
    m_done.clear();
    m_undone.clear();
    m_open.records.clear();
}

}  // namespace workbench::drawing
