#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

/// A line of text that opens a help topic.
class VXHOST CQrUiQuickStartLink : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(const VxString& text, DWORD style, const CRect& rect, CWnd* parent);
    /// The help topic that a click opens.
    void SetTopic(const VxString& topic);
    /// Sizes the window to its text.
    void SizeToContent();
};
