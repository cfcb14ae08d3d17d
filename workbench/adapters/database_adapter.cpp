#include "workbench/adapters/database_adapter.h"

#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

bool DatabaseAdapter::tilemode() const {
    HostCall call("VxDbDatabase::tilemode");
    if (call.failed())
        return call.returns(false);
    return call.returns(drawing::activeLayout(m_database).isNull());
}

VxDbObjectId DatabaseAdapter::paperSpaceVportId() const {
    HostCall call("VxDbDatabase::paperSpaceVportId");
    const drawing::ObjectId layout = drawing::activeLayout(m_database);
    VxDbObjectId id;
    if (!call.failed() && !layout.isNull())
        id = toHostId(drawing::findViewport(m_database, layout, drawing::Viewport::kPaperNumber));
    call.returns(id.number);
    return id;
}

double DatabaseAdapter::stepSize() const {
    HostCall call("VxDbDatabase::stepSize");
    return call.returns(valueIn(m_variables, *findVariable(L"STEPSIZE")).asReal());
}

double DatabaseAdapter::stepsPerSec() const {
    HostCall call("VxDbDatabase::stepsPerSec");
    return call.returns(valueIn(m_variables, *findVariable(L"STEPSPERSEC")).asReal());
}

bool DatabaseAdapter::cameraDisplay() const {
    HostCall call("VxDbDatabase::cameraDisplay");
    return call.returns(valueIn(m_variables, *findVariable(L"CAMERADISPLAY")).asInteger() != 0);
}

Zorq::ErrorStatus DatabaseAdapter::getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) {
    HostCall call("VxDbDatabase::getSymbolTable", {static_cast<int>(mode)});
    table = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    VxDbObject* object = nullptr;
    const drawing::Status status =
        m_objects.open(m_database.table(drawing::RecordKind::View), openModeOf(mode), object);
    table = static_cast<VxDbViewTable*>(object);
    return call.returns(toHostStatus(status));
}

}  // namespace workbench
