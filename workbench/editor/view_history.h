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
    /// become another. False if it has none or can't be changed now.
    bool stepBack(drawing::ObjectId viewport);

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
    };

    static Shown shownIn(const drawing::Viewport& viewport);
    bool isStill(const Shown& shown) const;

    static constexpr std::size_t kMostViews = 100;  // of a viewport; the oldest go

    drawing::Database& m_database;
    std::function<void(drawing::ObjectId)> m_onViewChanged;
    std::map<drawing::ObjectId, History> m_histories;
    bool m_quiet = false;
    bool m_steppingBack = false;  // the view that is replaced by going back is not kept
};

}  // namespace workbench
