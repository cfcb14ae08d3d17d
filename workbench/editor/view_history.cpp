#include "workbench/editor/view_history.h"

#include "workbench/drawing/records/view.h"

#include <algorithm>
#include <iterator>
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
    const std::size_t count = depth(viewport);
    return count > 0 && goBack(viewport, count - 1);
}

bool ViewHistory::stepBackByZoom(ObjectId viewport) {
    const auto found = m_histories.find(viewport);
    if (found == m_histories.end())
        return false;
    const drawing::ViewParameters& now = found->second.shown.view;
    const std::vector<Shown>& earlier = found->second.earlier;
    const auto last = std::find_if(earlier.rbegin(), earlier.rend(), [&now](const Shown& shown) {
        return shown.view.width != now.width || shown.view.height != now.height ||
               shown.view.lens != now.lens;
    });
    return last != earlier.rend() &&
           goBack(viewport, static_cast<std::size_t>(std::next(last).base() - earlier.begin()));
}

/// Gives the view at a place of the stack back; it and those above it go.
bool ViewHistory::goBack(ObjectId viewport, std::size_t place) {
    const auto* const present = m_database.look<Viewport>(viewport);
    if (present == nullptr || present->locked)
        return false;
    std::vector<Shown>& earlier = m_histories[viewport].earlier;
    const Shown last = earlier[place];
    {
        drawing::Writing<Viewport> writing(m_database, viewport);
        if (!writing)
            return false;
        writing->view = last.view;
        writing->appliedView.id = isStill(last) ? last.named : ObjectId();
        earlier.resize(place);
        m_steppingBack = true;
    }
    m_steppingBack = false;
    return true;
}

void ViewHistory::beginGesture(drawing::UndoLog::Gesture gesture) {
    if (m_gestures++ == 0 && gesture == drawing::UndoLog::Gesture::New)
        interruptGesture();
}

void ViewHistory::endGesture() {
    if (m_gestures > 0)
        --m_gestures;
}

void ViewHistory::interruptGesture() {
    for (auto& [viewport, history] : m_histories)
        history.inGesture = false;
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
    if (isKept(history)) {
        history.earlier.push_back(before);
        if (history.earlier.size() > kMostViews)
            history.earlier.erase(history.earlier.begin());
    }
    history.inGesture = m_gestures > 0 && !m_steppingBack;
    history.untold = true;
    if (!m_quiet)
        tell(object.id());
}

/// Whether a view that is being replaced goes on its viewport's stack.
bool ViewHistory::isKept(const History& history) const {
    const bool isStepOfGesture = m_gestures > 0 && history.inGesture;
    const bool isStepOfQuiet = m_quiet && history.untold;
    return !m_steppingBack && !isStepOfGesture && !isStepOfQuiet;
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
