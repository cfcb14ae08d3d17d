#include "workbench/adapters/open_view.h"

#include "workbench/base/text.h"

namespace workbench {

Zorq::ErrorStatus OpenView::getName(VxString& name) const {
    HostCall call("VxDbSymbolTableRecord::getName");
    if (call.failed())
        return call.returns(call.status(toHostStatus(drawing::Status::UnknownId)));
    name = toWide(data().name);
    return call.returns(Zorq::eOk);
}

}  // namespace workbench
