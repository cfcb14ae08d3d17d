#include "workbench/desktop/panes/gesture_roads.h"

#include "workbench/core/step_text.h"
#include "workbench/desktop/look/text.h"

namespace workbench::desktop {

GestureRoads::GestureRoads() {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAccessibleName(QStringLiteral("Roads of gestures"));
}

void GestureRoads::begin(const QString& title, std::uint64_t firstNumber) {
    // Of several without a record between them the last one is what the records come from.
    if (!m_starts.empty() && m_starts.back().firstNumber == firstNumber)
        m_starts.pop_back();
    m_starts.push_back({title, firstNumber});
    if (m_starts.size() > kMostGestures)
        m_starts.pop_front();
}

/// The group that a record belongs to, made when its first record comes; null for none.
QTreeWidgetItem* GestureRoads::roadFor(std::uint64_t number) {
    while (!m_starts.empty() && m_starts.front().firstNumber <= number) {
        const Start start = m_starts.front();
        m_starts.pop_front();
        if (!m_starts.empty() && m_starts.front().firstNumber <= number)
            continue;
        if (topLevelItemCount() > 0)
            topLevelItem(topLevelItemCount() - 1)->setExpanded(false);
        if (topLevelItemCount() == kMostGestures)
            delete takeTopLevelItem(0);
        auto* const road = new QTreeWidgetItem(this, {start.title});
        road->setExpanded(true);
    }
    return topLevelItemCount() == 0 ? nullptr : topLevelItem(topLevelItemCount() - 1);
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
    m_starts.clear();
}

}  // namespace workbench::desktop
