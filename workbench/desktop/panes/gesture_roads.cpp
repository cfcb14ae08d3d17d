#include "workbench/desktop/panes/gesture_roads.h"

#include "workbench/core/step_text.h"
#include "workbench/desktop/look/text.h"

#include <algorithm>

namespace workbench::desktop {

GestureRoads::GestureRoads() {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAccessibleName(QStringLiteral("Roads of gestures"));
}

void GestureRoads::begin(const QString& title, std::uint64_t firstNumber) {
    // Of several without a record between them the last one is what the records come from.
    if (!m_gestures.empty() && m_gestures.back().firstNumber == firstNumber)
        m_gestures.pop_back();
    end(firstNumber - 1);
    m_gestures.push_back({.title = title, .firstNumber = firstNumber});
    if (m_gestures.size() > kMostGestures)
        m_gestures.pop_front();
}

void GestureRoads::end(std::uint64_t lastNumber) {
    if (!m_gestures.empty())
        m_gestures.back().lastNumber = std::min(m_gestures.back().lastNumber, lastNumber);
}

/// The group that a record belongs to, made when its first record comes; null for none.
QTreeWidgetItem* GestureRoads::roadFor(std::uint64_t number) {
    while (!m_gestures.empty() && m_gestures.front().lastNumber < number)
        m_gestures.pop_front();
    if (m_gestures.empty() || m_gestures.front().firstNumber > number)
        return nullptr;
    Gesture& gesture = m_gestures.front();
    if (gesture.road == nullptr)
        gesture.road = makeRoad(gesture.title);
    return gesture.road;
}

QTreeWidgetItem* GestureRoads::makeRoad(const QString& title) {
    if (topLevelItemCount() > 0)
        topLevelItem(topLevelItemCount() - 1)->setExpanded(false);
    if (topLevelItemCount() == kMostGestures)
        delete takeTopLevelItem(0);
    auto* const road = new QTreeWidgetItem(this, {title});
    road->setExpanded(true);
    return road;
}

void GestureRoads::add(const JournalRecord& record) {
    QTreeWidgetItem* const road = roadFor(record.number);
    if (road == nullptr || road->childCount() >= kMostSteps)
        return;
    auto* const step = new QTreeWidgetItem(road, {toQt(std::string_view(describeStep(record)))});
    scrollToItem(step);
}

void GestureRoads::clearRoads() {
    clear();
    m_gestures.clear();
}

}  // namespace workbench::desktop
