#include "workbench/loader/service_entry.h"

namespace workbench {

ServiceEntry::ServiceEntry(HINSTANCE module) : RegisteredObject(L"VxRxService"), m_module(module) {
    ++s_live;
}

ServiceEntry::~ServiceEntry() {
    --s_live;
}

}  // namespace workbench
