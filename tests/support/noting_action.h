#pragma once

#include "core/quiescent_action.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// Notes its run and its end, and can act while it runs.
class NotingAction final : public QuiescentAction {
public:
    NotingAction(std::vector<std::string>& notes, std::string name, std::function<void()> act)
        : m_notes(notes),
          m_name(std::move(name)),
          m_act(std::move(act)) {}
    NotingAction(const NotingAction&) = delete;
    NotingAction& operator=(const NotingAction&) = delete;
    ~NotingAction() override { m_notes.push_back("end " + m_name); }
    void run() override {
        m_notes.push_back("run " + m_name);
        if (m_act)
            m_act();
    }

private:
    std::vector<std::string>& m_notes;
    std::string m_name;
    std::function<void()> m_act;
};

}  // namespace support
