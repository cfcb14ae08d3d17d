#include "workbench/editor/view_history.h"

#include "workbench/drawing/records/view.h"

#include <utility>

namespace workbench {

using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Viewport;

ViewHistory::ViewHistory(drawing::Database& database, std::function<void(ObjectId)> onViewChanged)
    : m_database(database),
      m_onViewChanged(std::move(onViewChanged)) {
    for (const ObjectId id : database.ids(RecordKind::Viewport))
        m_histories[id].shown = shownIn(*database.look<Viewport>(id));
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
    const Shown last = m_histories[viewport].earlier.back();
    {
        drawing::Writing<Viewport> writing(m_database, viewport);
        if (!writing)
            return false;
        writing->view = last.view;
        writing->appliedView.id = isStill(last) ? last.named : ObjectId();
        m_histories[viewport].earlier.pop_back();
        m_steppingBack = true;
    }
    m_steppingBack = false;
    return true;
}

void ViewHistory::tell(ObjectId viewport) {
    const auto found = m_histories.find(viewport);
    if (found != m_histories.end() && std::exchange(found->second.untold, false))
        m_onViewChanged(viewport);
}

void ViewHistory::objectAppended(const drawing::DbObject& object) {
    if (const auto* viewport = m_database.look<Viewport>(object.id()); viewport != nullptr)
        m_histories[object.id()].shown = shownIn(*viewport);
}

void ViewHistory::objectModified(const drawing::DbObject& object) {
    const auto* viewport = m_database.look<Viewport>(object.id());
    if (viewport == nullptr)
        return;
    History& history = m_histories[object.id()];
    const Shown before = std::exchange(history.shown, shownIn(*viewport));
    if (before.view == viewport->view)
        return;
    if (!m_steppingBack && !(m_quiet && history.untold)) {
        history.earlier.push_back(before);
        if (history.earlier.size() > kMostViews)
            history.earlier.erase(history.earlier.begin());
    }
    history.untold = true;
    if (!m_quiet)
        tell(object.id());
}

ViewHistory::Shown ViewHistory::shownIn(const Viewport& viewport) {
    return {viewport.view, viewport.appliedView.id};
}

bool ViewHistory::isStill(const Shown& shown) const {
    const drawing::DbObject* const named = m_database.peek(shown.named);
    const auto* const view = m_database.look<drawing::View>(shown.named);
    return view != nullptr && !named->isErased() && view->view == shown.view;
}

}  // namespace workbench
