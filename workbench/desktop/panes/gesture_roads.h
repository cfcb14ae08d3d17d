#pragma once

#include "workbench/core/journal.h"

#include <QTreeWidget>
#include <cstdint>
#include <deque>
#include <limits>

namespace workbench::desktop {

/// The road of each gesture as one group that can be folded: what happened from the press to the
/// release, and its echoes. The newest stands below, unfolded.
class GestureRoads final : public QTreeWidget {
public:
    static constexpr int kMostGestures = 50;  ///< The oldest go when there are more.
    static constexpr int kMostSteps = 2'000;  ///< Of one gesture; what follows is left out.

    GestureRoads();

    /// A gesture begins: records with this number and above are its own, until it ends or the next one
    /// begins.
    void begin(const QString& title, std::uint64_t firstNumber);
    /// The newest gesture ends with the record of this number, unless it has ended before.
    void end(std::uint64_t lastNumber);
    /// Takes a record that has come, in the order of their numbers. Those between gestures are left
    /// out.
    void add(const JournalRecord& record);
    void clearRoads();

private:
    struct Gesture {
        QString title;
        std::uint64_t firstNumber = 0;
        std::uint64_t lastNumber = std::numeric_limits<std::uint64_t>::max();  // until it ends
        QTreeWidgetItem* road = nullptr;  // the tree's; null: no record has come of it
    };

    QTreeWidgetItem* roadFor(std::uint64_t number);
    QTreeWidgetItem* makeRoad(const QString& title);

    std::deque<Gesture> m_gestures;  // that records may yet come of, oldest first
};

}  // namespace workbench::desktop
