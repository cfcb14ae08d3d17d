#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/profiles/user_registry.h"

#include <hostapi/qrui18/registry_access.h>

using workbench::HostCall;
using workbench::Value;
using workbench::Workbench;

namespace {

void release(HKEY& key) {
    if (Workbench* const living = Workbench::living(); living != nullptr && key != nullptr)
        living->userRegistry().close(key);
    key = nullptr;
}

Value read(HKEY key, const wchar_t* name) {
    if (name == nullptr)
        return {};
    return Workbench::current().userRegistry().value(key, name);
}

}  // namespace

CQrUiRegistryAccess::~CQrUiRegistryAccess() {
    release(m_key);
}

bool CQrUiRegistryAccess::Open(HKEY root, const VxString& path) {
    HostCall call("CQrUiRegistryAccess::Open", {path});
    release(m_key);
    if (!call.failed())
        m_key = Workbench::current().userRegistry().open(root, path);
    return call.returns(m_key != nullptr);
}

bool CQrUiRegistryAccess::GetString(const wchar_t* name, VxString& value) const {
    HostCall call("CQrUiRegistryAccess::GetString", {name});
    const Value found = call.failed() ? Value() : read(m_key, name);
    if (found.isString())
        value = workbench::toWide(found.asString());
    return call.returns(found.isString());
}

bool CQrUiRegistryAccess::GetDWORD(const wchar_t* name, DWORD& value) const {
    HostCall call("CQrUiRegistryAccess::GetDWORD", {name});
    const Value found = call.failed() ? Value() : read(m_key, name);
    if (found.isInteger())
        value = static_cast<DWORD>(found.asInteger());
    return call.returns(found.isInteger());
}

void CQrUiRegistryAccess::Close() {
    const HostCall call("CQrUiRegistryAccess::Close");
    release(m_key);
}
