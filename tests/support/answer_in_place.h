#pragma once

#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <memory>

namespace support {

/// While it lives, answers one message of a window in the toolkit's place; all others go on to the
/// toolkit. The window must outlive it.
class AnswerInPlace {
public:
    AnswerInPlace(workbench::WindowSystem& windows, HWND window, UINT message, LRESULT answer)
        : m_windows(windows),
          m_window(window) {
        auto answering = std::make_unique<Answering>(message, answer);
        m_answering = answering.get();
        answering->rest = std::move(m_windows.find(window)->widget);
        m_windows.find(window)->widget = std::move(answering);
    }
    AnswerInPlace(const AnswerInPlace&) = delete;
    AnswerInPlace& operator=(const AnswerInPlace&) = delete;
    ~AnswerInPlace() {
        std::unique_ptr<workbench::Widget> rest = std::move(m_answering->rest);
        m_windows.find(m_window)->widget = std::move(rest);
    }

private:
    class Answering final : public workbench::Widget {
    public:
        Answering(UINT message, LRESULT answer) : m_message(message), m_answer(answer) {}
        bool handle(workbench::Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                    LRESULT& answer) override {
            if (message != m_message)
                return rest != nullptr && rest->handle(window, message, wParam, lParam, answer);
            answer = m_answer;
            return true;
        }

        std::unique_ptr<workbench::Widget> rest;  // null for a plain window

    private:
        UINT m_message;
        LRESULT m_answer;
    };

    workbench::WindowSystem& m_windows;
    HWND m_window;
    Answering* m_answering;  // the window's
};

}  // namespace support
