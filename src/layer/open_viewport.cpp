#include "layer/open_viewport.h"

namespace {

constexpr Zorq::ErrorStatus kOtherClass = 3;

}  // namespace

void OpenViewport::open(VxDbObjectId id) {
    m_status = vxdbOpenObject(m_object, id, VxDbOpenMode::kForWrite);
    if (m_status != Zorq::eOk) {
        m_object = nullptr;
        return;
    }
    m_viewport = dynamic_cast<VxDbViewport*>(m_object);
    if (m_viewport == nullptr)
        m_status = kOtherClass;
}

OpenViewport::~OpenViewport() {
    if (m_object == nullptr)
        return;
    if (m_object->objectId().isNull())
        delete m_object;  // in no database: nobody else has it
    else
        m_object->close();
}
