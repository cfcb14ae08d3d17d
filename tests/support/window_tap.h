#pragma once

#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <vector>

namespace support {

/// Stands between a window and its object: notes each message with its parameters and hands it on.
/// Ends before the object. Only for windows whose object nobody asks for meanwhile, such as controls
/// during a broadcast.
class WindowTap final : public CWnd {
public:
    struct Message {
        UINT number;
        WPARAM wParam;
        LPARAM lParam;
        friend bool operator==(const Message&, const Message&) = default;
    };

    WindowTap(workbench::WindowSystem& windows, HWND window)
        : m_windows(windows),
          m_window(window),
          m_object(windows.find(window)->object) {
        m_windows.find(m_window)->object = this;
    }
    WindowTap(const WindowTap&) = delete;
    WindowTap& operator=(const WindowTap&) = delete;
    ~WindowTap() override {
        if (workbench::Window* window = m_windows.find(m_window))
            window->object = m_object;
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_messages.push_back({message, wParam, lParam});
        return m_object->WindowProc(message, wParam, lParam);
    }
    /// The messages of a number, in order.
    std::vector<Message> of(UINT number) const {
        std::vector<Message> found;
        for (const Message& message : m_messages) {
            if (message.number == number)
                found.push_back(message);
        }
        return found;
    }

private:
    workbench::WindowSystem& m_windows;
    HWND m_window;
    CWnd* m_object;  // not owned
    std::vector<Message> m_messages;
};

using TapMessages = std::vector<WindowTap::Message>;

}  // namespace support
