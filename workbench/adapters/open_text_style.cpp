#include "workbench/adapters/open_text_style.h"

namespace workbench {

double OpenTextStyle::textSize() const {
    HostCall call("VxDbTextStyleTableRecord::textSize");
    return call.returns(call.failed() ? 0.0 : data().height);
}

}  // namespace workbench
