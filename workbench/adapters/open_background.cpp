#include "workbench/adapters/open_background.h"

namespace workbench {

int OpenBackground::type() const {
    HostCall call("VxDbBackground::type");
    return call.returns(data().type);
}

}  // namespace workbench
