#pragma once

#include <hostapi/vxdb18/database.h>

/// A viewport of a layout that is open for writing while this lives.
class OpenViewport {
public:
    OpenViewport() = default;
    OpenViewport(const OpenViewport&) = delete;
    OpenViewport& operator=(const OpenViewport&) = delete;
    ~OpenViewport();

    /// Opens a viewport, once; whether it went well is the status.
    void open(VxDbObjectId id);
    /// 0 while the viewport is open; 15 if none was to be opened.
    Zorq::ErrorStatus status() const { return m_status; }
    /// The viewport; null unless the status is 0.
    VxDbViewport* get() const { return m_viewport; }

private:
    static constexpr Zorq::ErrorStatus kNotOpened = 15;

    VxDbObject* m_object = nullptr;  // the host's; ours to close
    VxDbViewport* m_viewport = nullptr;
    Zorq::ErrorStatus m_status = kNotOpened;
};
