#include "controls/current_view.h"

#include <hostapi/zorq/views.h>

CurrentView::CurrentView(int viewportNumber) : m_view(vxgsGetGsView(viewportNumber, false)) {
    if (m_view != nullptr)
        return;
    VxGsManager* graphics = vxgsGetGsManager(nullptr);
    if (graphics == nullptr)
        return;
    m_factory = graphics->classFactory();
    if (m_factory == nullptr)
        return;
    m_view = m_factory->createView({viewportNumber, vxedGetCurViewportObjectId()});
    if (m_view != nullptr)
        vxgsGetViewParameters(viewportNumber, m_view);
}

CurrentView::~CurrentView() {
    if (m_factory != nullptr && m_view != nullptr)
        m_factory->deleteView(m_view);
}
