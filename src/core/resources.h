#pragma once

#include <hostapi/types.h>
#include <hostapi/window/module.h>

/// The module's resource library, "VxDashboardRes.dll": its strings and pictures.
class VxDaResources {
public:
    /// Loads the library. False if it can't be found; the reason is the thread's last error.
    bool load();
    /// Puts the library into the framework's search chain, once.
    void attach();
    /// Gives the library back, if it was loaded. The handle keeps its value.
    void free();
    /// Takes the library out of the search chain, if it is in.
    void detach();

    /// The library, null before the load and after a failed one.
    HINSTANCE library() const { return m_library; }

private:
    HINSTANCE m_library = nullptr;
    bool m_attached = false;
    AFX_EXTENSION_MODULE m_extension;  // ours while `m_attached`
};

/// The resource library of the module.
VxDaResources& dashboardResources();

/// A string of the resource library; empty if it has none of that number.
VxString loadDashboardString(UINT number);

/// The two sizes of pictures, in pixels.
constexpr int kSmallPixels = 16;
constexpr int kLargePixels = 32;
/// A picture of a library at a size; null if it has none under that key. Owned by the caller.
HBITMAP loadPicture(HINSTANCE library, const wchar_t* key, int pixels);
/// A picture of the resource library.
HBITMAP loadDashboardPicture(const wchar_t* key, int pixels);

/// Loads the library of tool images, which is named after the host's program and stays loaded for the
/// life of the process.
void loadIconLibrary();
/// The library of tool images; null if the host has none.
HINSTANCE iconLibrary();
