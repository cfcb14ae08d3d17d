#include "core/resources.h"

#include "core/constants.h"

#include <hostapi/qrui18/image.h>
#include <hostapi/vxdb18/host_services.h>

namespace {

constexpr int kToolkitChoice = -1;  // the colours and the mask are the toolkit's choice

HINSTANCE s_iconLibrary = nullptr;  // never given back

}  // namespace

bool VxDaResources::load() {
    m_library = LoadLibrary(kResourceLibraryFile);
    return m_library != nullptr;
}

void VxDaResources::attach() {
    if (m_attached)
        return;
    m_extension.resourceHandle = AfxGetResourceHandle();
    m_extension.library = m_library;
    AfxInitExtensionModule(m_extension, m_library);
    m_attached = true;
}

void VxDaResources::free() {
    // Kept as it is: the handle keeps its value, because nothing may load from it after this step.
    if (m_library != nullptr)
        FreeLibrary(m_library);
}

void VxDaResources::detach() {
    if (!m_attached)
        return;
    AfxTermExtensionModule(m_extension);
    m_attached = false;
}

VxDaResources& dashboardResources() {
    static VxDaResources resources;
    return resources;
}

VxString loadDashboardString(UINT number) {
    // The swap keeps foreign libraries out of the search.
    const HINSTANCE previous = AfxGetResourceHandle();
    AfxSetResourceHandle(dashboardResources().library());
    VxString text;
    LoadString(number, text);
    AfxSetResourceHandle(previous);
    return text;
}

HBITMAP loadPicture(HINSTANCE library, const wchar_t* key, int pixels) {
    return QrUiLoadImageFromResource(library, key, pixels, kToolkitChoice);
}

HBITMAP loadDashboardPicture(const wchar_t* key, int pixels) {
    return loadPicture(dashboardResources().library(), key, pixels);
}

void loadIconLibrary() {
    const VxDbHostApplicationServices* services = vxdbHostApplicationServices();
    const VxString program = services == nullptr ? VxString() : services->program();
    s_iconLibrary = LoadLibrary((program + kIconLibrarySuffix).c_str());
}

HINSTANCE iconLibrary() {
    return s_iconLibrary;
}
