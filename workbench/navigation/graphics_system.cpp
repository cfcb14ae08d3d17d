#include "workbench/navigation/graphics_system.h"

#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/drawing/records/visual_style.h"
#include "workbench/editor/document_list.h"

#include <algorithm>

namespace workbench {

namespace {

using drawing::Viewport;
using drawing::VisualStyle;

const Viewport* lookAt(const DocumentList& documents, drawing::ObjectId viewport) {
    const Document* document = documents.findBySerial(viewport.database());
    return document == nullptr ? nullptr : document->data().look<Viewport>(viewport);
}

/// Plain lines are drawn without the graphics system.
bool isShownFlat(const Document& document, const Viewport& viewport) {
    const auto* style = document.data().look<VisualStyle>(viewport.visualStyle);
    return style == nullptr || style->flat;
}

}  // namespace

bool LiveView::isPerspective() const {
    HostCall call("VxGsView::isPerspective");
    const Viewport* viewport = lookAt(m_documents, m_viewport);
    return call.returns(!call.failed() && viewport != nullptr && viewport->view.perspective);
}

bool TemporaryView::isPerspective() const {
    HostCall call("VxGsView::isPerspective");
    return call.returns(!call.failed() && m_parameters.perspective);
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
        view = std::make_unique<LiveView>(m_documents, id);
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

TemporaryView* GraphicsSystem::findTemporary(const VxGsView* view) const {
    const auto found = std::find_if(m_temporary.begin(), m_temporary.end(),
                                    [view](const auto& present) { return present.get() == view; });
    return found == m_temporary.end() ? nullptr : found->get();
}

}  // namespace workbench
