#pragma once

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"

namespace workbench {

/// A document whose objects are opened as modules open them.
class AdaptersTest : public EditorTest {
protected:
    AdaptersTest() : m_document(newDocument()) {}

    drawing::Database& data() { return m_document.data(); }
    VxDbObject* open(drawing::ObjectId id) {
        VxDbObject* object = nullptr;
        m_document.openObjects().open(id, drawing::OpenMode::Read, object);
        return object;
    }
    /// The same as an object of the host's class; null for an object of another one.
    template <class Host>
    Host* openAs(drawing::ObjectId id) {
        return dynamic_cast<Host*>(open(id));
    }
    drawing::ObjectId firstLayout() { return data().first(drawing::RecordKind::Layout); }

    Document& m_document;
};

}  // namespace workbench
