#include "workbench/editor/view_history.h"

#include "workbench/drawing/records/viewport.h"

#include <utility>

namespace workbench {

using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Viewport;

ViewHistory::ViewHistory(drawing::Database& database, std::function<void(ObjectId)> onViewChanged)
    : m_database(database),
      m_onViewChanged(std::move(onViewChanged)) {
    for (const ObjectId id : database.ids(RecordKind::Viewport))
        m_histories[id].shown = database.look<Viewport>(id)->view;
    m_database.addReactor(this);
}

ViewHistory::~ViewHistory() {
    m_database.removeReactor(this);
}

std::size_t ViewHistory::depth(ObjectId viewport) const {
    const auto found = m_histories.find(viewport);
    return found == m_histories.end() ? 0 : found->second.earlier.size();
}

bool ViewHistory::stepBack(ObjectId viewport) {
    if (depth(viewport) == 0)
        return false;
    drawing::Writing<Viewport> writing(m_database, viewport);
    if (!writing)
        return false;
    std::vector<drawing::ViewParameters>& earlier = m_histories[viewport].earlier;
    writing->view = earlier.back();
    earlier.pop_back();
    m_steppingBack = true;
    return true;
}

void ViewHistory::objectAppended(const drawing::DbObject& object) {
    if (const auto* viewport = m_database.look<Viewport>(object.id()); viewport != nullptr)
        m_histories[object.id()].shown = viewport->view;
}

void ViewHistory::objectModified(const drawing::DbObject& object) {
    const auto* viewport = m_database.look<Viewport>(object.id());
    if (viewport == nullptr)
        return;
    History& history = m_histories[object.id()];
    const drawing::ViewParameters before = std::exchange(history.shown, viewport->view);
    const bool goesBack = std::exchange(m_steppingBack, false);
    if (before == viewport->view)
        return;
    if (!goesBack) {
        history.earlier.push_back(before);
        if (history.earlier.size() > kMostViews)
            history.earlier.erase(history.earlier.begin());
    }
    if (!m_quiet)
        m_onViewChanged(object.id());
}

}  // namespace workbench
