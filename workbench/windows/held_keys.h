#pragma once

#include <set>

namespace workbench {

/// The keys that the user holds down, by their codes (`VK_...`).
class HeldKeys {
public:
    bool isHeld(int key) const { return m_keys.contains(key); }
    void hold(int key, bool down) {
        if (down)
            m_keys.insert(key);
        else
            m_keys.erase(key);
    }

private:
    std::set<int> m_keys;
};

}  // namespace workbench
