#pragma once

#include "workbench/windows/window.h"

#include <string>

namespace workbench {

/// A line of text that opens a help topic when it is clicked.
class LinkWidget final : public Widget {
public:
    const std::wstring& topic() const { return m_topic; }
    void setTopic(std::wstring topic) { m_topic = std::move(topic); }

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    std::wstring m_topic;
    bool m_pressed = false;
};

}  // namespace workbench
