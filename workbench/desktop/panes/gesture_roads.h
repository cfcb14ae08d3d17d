#pragma once

#include "workbench/core/journal.h"

#include <QTreeWidget>
#include <cstdint>
#include <deque>

namespace workbench::desktop {

/// The road of each gesture as one group that can be folded: what happened from the press on, behind
/// the release its echoes too, until the next gesture. The newest stands below, unfolded.
class GestureRoads final : public QTreeWidget {
public:
    static constexpr int kMostGestures = 50;  ///< The oldest go when there are more.
    static constexpr int kMostSteps = 2'000;  ///< Of one gesture; what follows is left out.

    GestureRoads();

    /// A gesture begins: records with this number and above are its own, until the next one begins.
    void begin(const QString& title, std::uint64_t firstNumber);
    /// Takes a record that has come, in the order of their numbers. Those before the first gesture are
    /// left out.
    void add(const JournalRecord& record);
    void clearRoads();

private:
    struct Start {
        QString title;
        std::uint64_t firstNumber;
    };

    QTreeWidgetItem* roadFor(std::uint64_t number);

    std::deque<Start> m_starts;  // of gestures that have no group yet, oldest first
};

}  // namespace workbench::desktop
