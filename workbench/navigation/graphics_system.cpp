#include "workbench/navigation/graphics_system.h"

#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/drawing/records/visual_style.h"
#include "workbench/editor/document_list.h"

#include <algorithm>
#include <string>
#include <utility>

namespace workbench {

namespace {

using drawing::Viewport;
using drawing::VisualStyle;

const Viewport* lookAt(const DocumentList& documents, drawing::ObjectId viewport) {
    const Document* document = documents.findBySerial(viewport.database());
    return document == nullptr ? nullptr : document->data().look<Viewport>(viewport);
}

VxGePoint3d toPoint(const drawing::Vec3& place) {
    return {place.x, place.y, place.z};
}

/// Plain lines are drawn without the graphics system.
bool isShownFlat(const Document& document, const Viewport& viewport) {
    const auto* style = document.data().look<VisualStyle>(viewport.visualStyle);
    return style == nullptr || style->flat;
}

/// Gives a viewport the view back that it had when this was made.
class RecordedView final : public drawing::UndoRecord {
public:
    RecordedView(drawing::Database& database, drawing::ObjectId viewport)
        : m_database(database),
          m_viewport(viewport),
          m_other(shown()) {}

    void exchange() override {
        const Shown present = shown();
        if (present == m_other)
            return;
        drawing::Writing<Viewport> writing(m_database, m_viewport);
        if (!writing)
            return;
        writing->view = m_other.view;
        writing->appliedView = m_other.applied;
        m_other = present;
    }

private:
    struct Shown {
        drawing::ViewParameters view;
        drawing::Ref<drawing::RecordKind::View> applied;
        friend bool operator==(const Shown&, const Shown&) = default;
    };
    Shown shown() const {
        const auto& viewport = *m_database.look<Viewport>(m_viewport);
        return {viewport.view, viewport.appliedView};
    }

    drawing::Database& m_database;  // owns the log, which owns this
    drawing::ObjectId m_viewport;
    Shown m_other;
};

}  // namespace

bool ParameterView::isPerspective() const {
    HostCall call("VxGsView::isPerspective");
    return call.returns(!call.failed() && parameters().perspective);
}

VxGePoint3d ParameterView::eyePosition() const {
    HostCall call("VxGsView::eyePosition");
    return toPoint(parameters().eye);
}

VxGePoint3d ParameterView::target() const {
    HostCall call("VxGsView::target");
    return toPoint(parameters().target);
}

VxGeVector3d ParameterView::upVector() const {
    HostCall call("VxGsView::upVector");
    const drawing::Vec3 up = parameters().up;
    return {up.x, up.y, up.z};
}

double ParameterView::fieldWidth() const {
    HostCall call("VxGsView::fieldWidth");
    return call.returns(parameters().width);
}

double ParameterView::fieldHeight() const {
    HostCall call("VxGsView::fieldHeight");
    return call.returns(parameters().height);
}

void ParameterView::setView(const VxGePoint3d& eye, const VxGePoint3d& target,
                            const VxGeVector3d& up, double fieldWidth, double fieldHeight,
                            bool perspective) {
    HostCall call("VxGsView::setView", {fieldWidth, fieldHeight, perspective});
    if (call.failed())
        return;
    drawing::ViewParameters changed = parameters();
    changed.eye = {eye.x, eye.y, eye.z};
    changed.target = {target.x, target.y, target.z};
    changed.up = {up.x, up.y, up.z};
    changed.width = fieldWidth;
    changed.height = fieldHeight;
    changed.perspective = perspective;
    setParameters(changed);
}

void ParameterView::update() {
    // What is on screen is drawn from the drawing: the journal's record is all of it.
    HostCall call("VxGsView::update");
}

drawing::ViewParameters LiveView::parameters() const {
    const drawing::ViewParameters* view = m_graphics.viewOf(m_viewport);
    return view == nullptr ? drawing::ViewParameters() : *view;
}

void LiveView::setParameters(const drawing::ViewParameters& parameters) {
    m_graphics.changeView(m_viewport, parameters);
}

VxGsView* GraphicsSystem::liveView(int viewportNumber, bool create) {
    const drawing::ObjectId id = findViewport(viewportNumber);
    const Viewport* viewport = lookAt(m_documents, id);
    if (viewport == nullptr)
        return nullptr;
    const bool shows =
        create || m_live.contains(id) || !isShownFlat(*m_documents.current(), *viewport);
    if (!shows)
        return nullptr;
    std::unique_ptr<LiveView>& view = m_live[id];
    if (view == nullptr)
        view = std::make_unique<LiveView>(*this, id);
    return view.get();
}

bool GraphicsSystem::copyParameters(int viewportNumber, VxGsView* view) {
    TemporaryView* target = findTemporary(view);
    const Viewport* viewport = lookAt(m_documents, findViewport(viewportNumber));
    if (target == nullptr || viewport == nullptr)
        return false;
    target->setParameters(viewport->view);
    return true;
}

bool GraphicsSystem::applyParameters(int viewportNumber, const VxGsView* view) {
    const ParameterView* source = findOwn(view);
    const drawing::ObjectId viewport = findViewport(viewportNumber);
    const drawing::ViewParameters* present = viewOf(viewport);
    if (source == nullptr || present == nullptr)
        return false;
    drawing::ViewParameters changed = source->parameters();
    changed.lens = present->lens;
    const bool isChanged = changeView(viewport, changed);
    m_documents.findBySerial(viewport.database())->viewHistory().tell(viewport);
    return isChanged;
}

std::optional<double> GraphicsSystem::lens(int viewportNumber) const {
    const drawing::ViewParameters* view = viewOf(findViewport(viewportNumber));
    return view == nullptr ? std::nullopt : std::optional(view->lens);
}

bool GraphicsSystem::setLens(int viewportNumber, double lens) {
    const drawing::ObjectId viewport = findViewport(viewportNumber);
    const drawing::ViewParameters* view = viewOf(viewport);
    if (view == nullptr || !(lens > 0.0))
        return false;
    drawing::ViewParameters changed = *view;
    changed.lens = lens;
    return changeView(viewport, changed);
}

void GraphicsSystem::beginUndoStep(int viewportNumber) {
    const drawing::ObjectId viewport = findViewport(viewportNumber);
    m_undoStep.reset();
    if (lookAt(m_documents, viewport) == nullptr)
        return;
    drawing::Database& database = m_documents.findBySerial(viewport.database())->data();
    m_undoStep = UndoStep{viewport, std::make_unique<RecordedView>(database, viewport)};
}

const drawing::ViewParameters* GraphicsSystem::viewOf(drawing::ObjectId viewport) const {
    const Viewport* found = lookAt(m_documents, viewport);
    return found == nullptr ? nullptr : &found->view;
}

bool GraphicsSystem::changeView(drawing::ObjectId viewport, const drawing::ViewParameters& view) {
    const drawing::ViewParameters* present = viewOf(viewport);
    if (present == nullptr)
        return false;
    if (*present == view)
        return true;
    Document& document = *m_documents.findBySerial(viewport.database());
    drawing::Database& database = document.data();
    drawing::UndoLog& log = database.undoLog();
    const std::size_t groupBefore = log.lastGroup();
    {
        const drawing::UndoGroup group(log, std::string());
        drawing::Writing<Viewport> writing(database, viewport);
        if (!writing)
            return false;
        if (isOfUndoStep(viewport) && m_undoStep->recorded != nullptr)
            log.add(std::move(m_undoStep->recorded));
        writing->view = view;
        writing->appliedView = {};
        document.viewHistory().setQuiet(true);
    }
    document.viewHistory().setQuiet(false);
    joinUndoStep(viewport, log, groupBefore);
    return true;
}

bool GraphicsSystem::isOfUndoStep(drawing::ObjectId viewport) const {
    return m_undoStep && m_undoStep->viewport == viewport;
}

void GraphicsSystem::joinUndoStep(drawing::ObjectId viewport, drawing::UndoLog& log,
                                  std::size_t groupBefore) {
    // Without a group of its own the change belongs to the command that is running.
    if (!isOfUndoStep(viewport) || log.lastGroup() == groupBefore)
        return;
    if (m_undoStep->group != 0 && m_undoStep->group == groupBefore)
        log.joinLastTwo();
    m_undoStep->group = log.lastGroup();
}

VxGsClassFactory* GraphicsSystem::classFactory() {
    HostCall call("VxGsManager::classFactory");
    VxGsClassFactory* factory = call.failed() ? nullptr : this;
    return call.returns(factory);
}

VxGsView* GraphicsSystem::createView(const VxGsViewDescriptor& descriptor) {
    HostCall call("VxGsClassFactory::createView",
                  {descriptor.viewportNumber, descriptor.viewportId.number});
    VxGsView* view = nullptr;
    if (!call.failed()) {
        m_temporary.push_back(std::make_unique<TemporaryView>());
        view = m_temporary.back().get();
    }
    return call.returns(view);
}

void GraphicsSystem::deleteView(VxGsView* view) {
    HostCall call("VxGsClassFactory::deleteView", {view});
    const TemporaryView* ending = findTemporary(view);
    std::erase_if(m_temporary, [ending](const auto& present) { return present.get() == ending; });
}

drawing::ObjectId GraphicsSystem::findViewport(int number) const {
    const Document* document = m_documents.current();
    if (document == nullptr)
        return {};
    const drawing::Database& database = document->data();
    return drawing::findViewport(database, drawing::activeLayout(database), number);
}

const ParameterView* GraphicsSystem::findOwn(const VxGsView* view) const {
    if (const TemporaryView* temporary = findTemporary(view))
        return temporary;
    const auto found = std::find_if(m_live.begin(), m_live.end(), [view](const auto& entry) {
        return entry.second.get() == view;
    });
    return found == m_live.end() ? nullptr : found->second.get();
}

TemporaryView* GraphicsSystem::findTemporary(const VxGsView* view) const {
    const auto found = std::find_if(m_temporary.begin(), m_temporary.end(),
                                    [view](const auto& present) { return present.get() == view; });
    return found == m_temporary.end() ? nullptr : found->get();
}

}  // namespace workbench
