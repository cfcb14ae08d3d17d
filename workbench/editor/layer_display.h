#pragma once

#include <functional>
#include <utility>

namespace workbench {

/// How the host's own lists of layers go by the current filter; for as long as the program runs.
class LayerDisplay {
public:
    /// Whether only the layers that the current filter shows are listed.
    bool isByFilter() const { return m_byFilter; }
    void setByFilter(bool byFilter) { change(m_byFilter, byFilter); }
    /// Whether what the filter leaves out is listed instead.
    bool isInverted() const { return m_inverted; }
    void setInverted(bool inverted) { change(m_inverted, inverted); }

    /// Hears of each change; null for nobody.
    void setListener(std::function<void()> listener) { m_listener = std::move(listener); }

private:
    void change(bool& flag, bool value) {
        if (std::exchange(flag, value) != value && m_listener)
            m_listener();
    }

    bool m_byFilter = false;
    bool m_inverted = false;
    std::function<void()> m_listener;
};

}  // namespace workbench
