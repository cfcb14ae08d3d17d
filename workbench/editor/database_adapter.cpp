#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/document.h"
#include "workbench/editor/object_adapters.h"
#include "workbench/editor/variables/system_variables.h"

namespace workbench {

namespace {

/// The value of a drawing's variable, its initial one while the drawing has none of its own.
Value valueIn(Document& document, const wchar_t* name) {
    const VariableDefinition* variable = SystemVariables::find(name);
    const auto& values = document.variables();
    const auto found = values.find(variable);
    return found == values.end() ? variable->initial : found->second;
}

}  // namespace

const drawing::Database& DatabaseAdapter::database() const {
    return m_document.data();
}

bool DatabaseAdapter::tilemode() const {
    HostCall call("VxDbDatabase::tilemode");
    if (call.failed())
        return call.returns(false);
    return call.returns(drawing::activeLayout(database()).isNull());
}

VxDbObjectId DatabaseAdapter::paperSpaceVportId() const {
    HostCall call("VxDbDatabase::paperSpaceVportId");
    const drawing::ObjectId layout = drawing::activeLayout(database());
    VxDbObjectId id;
    if (!call.failed() && !layout.isNull())
        id = toHostId(drawing::findViewport(database(), layout, drawing::Viewport::kPaperNumber));
    call.returns(id.number);
    return id;
}

double DatabaseAdapter::stepSize() const {
    HostCall call("VxDbDatabase::stepSize");
    return call.returns(valueIn(m_document, L"STEPSIZE").asReal());
}

double DatabaseAdapter::stepsPerSec() const {
    HostCall call("VxDbDatabase::stepsPerSec");
    return call.returns(valueIn(m_document, L"STEPSPERSEC").asReal());
}

bool DatabaseAdapter::cameraDisplay() const {
    HostCall call("VxDbDatabase::cameraDisplay");
    return call.returns(valueIn(m_document, L"CAMERADISPLAY").asInteger() != 0);
}

Zorq::ErrorStatus DatabaseAdapter::getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) {
    HostCall call("VxDbDatabase::getSymbolTable", {static_cast<int>(mode)});
    table = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::unknownId)));
    VxDbObject* object = nullptr;
    const drawing::Status status = m_document.openObjects().open(
        database().table(drawing::RecordKind::View), openModeOf(mode), object);
    table = static_cast<VxDbViewTable*>(object);
    return call.returns(toHostStatus(status));
}

}  // namespace workbench
