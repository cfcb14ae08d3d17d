#include "workbench/adapters/database_adapter.h"

#include "workbench/adapters/host_values.h"
#include "workbench/core/host_call.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"

#include <hostapi/vxdb18/layer.h>
#include <hostapi/vxdb18/text_style.h>

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

VxDbObjectId DatabaseAdapter::clayer() const {
    HostCall call("VxDbDatabase::clayer");
    const VxDbObjectId layer =
        call.failed() ? VxDbObjectId() : toHostId(drawing::currentLayer(m_database));
    call.returns(layer.number);
    return layer;
}

template <class Table>
Zorq::ErrorStatus DatabaseAdapter::openTable(drawing::RecordKind kind, Table*& table,
                                             VxDbOpenMode mode) {
    HostCall call("VxDbDatabase::getSymbolTable", {static_cast<int>(mode)});
    table = nullptr;
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    VxDbObject* object = nullptr;
    const drawing::Status status = m_objects.open(m_database.table(kind), openModeOf(mode), object);
    table = static_cast<Table*>(object);
    return call.returns(toHostStatus(status));
}

Zorq::ErrorStatus DatabaseAdapter::getSymbolTable(VxDbViewTable*& table, VxDbOpenMode mode) {
    return openTable(drawing::RecordKind::View, table, mode);
}

Zorq::ErrorStatus DatabaseAdapter::getSymbolTable(VxDbLayerTable*& table, VxDbOpenMode mode) {
    return openTable(drawing::RecordKind::Layer, table, mode);
}

Zorq::ErrorStatus DatabaseAdapter::getSymbolTable(VxDbTextStyleTable*& table, VxDbOpenMode mode) {
    return openTable(drawing::RecordKind::TextStyle, table, mode);
}

}  // namespace workbench
