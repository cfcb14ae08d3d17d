#pragma once

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/database/reactors.h"
#include "workbench/drawing/records/viewport.h"

#include <functional>
#include <map>
#include <vector>

namespace workbench {

/// The earlier views of each viewport of one drawing: a view goes on the viewport's stack when it
/// is replaced, whoever replaces it.
class ViewHistory final : public drawing::DatabaseReactor {
public:
    /// `onViewChanged` is told each viewport whose view was replaced.
    ViewHistory(drawing::Database& database, std::function<void(drawing::ObjectId)> onViewChanged);
    ViewHistory(const ViewHistory&) = delete;
    ViewHistory& operator=(const ViewHistory&) = delete;
    ~ViewHistory() override;

    /// How many earlier views a viewport has.
    std::size_t depth(drawing::ObjectId viewport) const;
    /// Gives a viewport its last view back, as the named view that it was unless that one has gone or
    /// become another. False if it has none, is locked or can't be changed now.
    bool stepBack(drawing::ObjectId viewport);
    /// Takes a viewport's last zoom back, with whatever moved its view since: it gets the last view with
    /// another lens or another size of its field. False too if none of the earlier ones has.
    bool stepBackByZoom(drawing::ObjectId viewport);

    /// While a gesture lasts, only the view that a viewport had at its beginning goes on the stack.
    /// Gestures nest: only the outermost counts. `Continue` goes on with the gesture before as far as
    /// the view has not changed since.
    void beginGesture(drawing::UndoLog::Gesture gesture);
    void endGesture();
    /// The next view that is replaced goes on the stack, also in the middle of a gesture.
    void interruptGesture();

    /// While quiet nobody is told of a view that changes, until `tell`. What the view was before the
    /// first such change goes on the stack, not what it was between them.
    void setQuiet(bool quiet) { m_quiet = quiet; }
    /// Tells of a viewport whose view changed while quiet; nothing if it did not.
    void tell(drawing::ObjectId viewport);

    // drawing::DatabaseReactor:
    void objectAppended(const drawing::DbObject& object) override;
    void objectModified(const drawing::DbObject& object) override;

private:
    struct Shown {
        drawing::ViewParameters view;
        drawing::ObjectId named;  // the named view that it is; null for none
    };
    struct History {
        Shown shown;
        std::vector<Shown> earlier;  // the last one was shown last
        bool untold = false;         // changed while quiet
        bool inGesture = false;      // the present or last gesture made the last change
    };

    static Shown shownIn(const drawing::Viewport& viewport);
    bool isStill(const Shown& shown) const;
    bool goBack(drawing::ObjectId viewport, std::size_t place);
    bool isKept(const History& history) const;

    static constexpr std::size_t kMostViews = 100;  // of a viewport; the oldest go

    drawing::Database& m_database;
    std::function<void(drawing::ObjectId)> m_onViewChanged;
    std::map<drawing::ObjectId, History> m_histories;
    bool m_quiet = false;
    int m_gestures = 0;           // nested ones that are under way
    bool m_steppingBack = false;  // the view that is replaced by going back is not kept
};

}  // namespace workbench
