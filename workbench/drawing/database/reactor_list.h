#pragma once

#include "workbench/base/turn.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace workbench::drawing {

/// The reactors of one object, called in the order in which they were added. A reactor may add
/// and remove itself and others while the list is walked: one that is removed is not called any
/// more, one that is added is not called in the walk that is under way.
template <class Reactor>
class ReactorList {
public:
    /// Null, and a reactor that is on the list already, are left out.
    void add(Reactor* reactor) {
        if (reactor != nullptr && !contains(reactor)) {
            m_reactors.push_back(reactor);
        }
    }

    void remove(Reactor* reactor) {
        const auto found = std::find(m_reactors.begin(), m_reactors.end(), reactor);
        if (found == m_reactors.end() || reactor == nullptr) {
            return;
        }
        if (m_walks > 0) {
            *found = nullptr;
        } else {
            m_reactors.erase(found);
        }
    }

    bool contains(const Reactor* reactor) const {
        return std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end();
    }

    template <class Call>
    void notify(const Call& call) {
        const Turn turn;
        const Walk walk(*this);
        const std::size_t end = m_reactors.size();
        for (std::size_t i = 0; i < end; ++i) {
            if (m_reactors[i] != nullptr) {
                call(*m_reactors[i]);
            }
        }
    }

    /// Calls each reactor once for the last time, taking it off the list before its call.
    template <class Call>
    void dismiss(const Call& call) {
        const Turn turn;
        const Walk walk(*this);
        for (std::size_t i = 0; i < m_reactors.size(); ++i) {
            if (Reactor* const reactor = std::exchange(m_reactors[i], nullptr)) {
                call(*reactor);
            }
        }
    }

private:
    /// Keeps the places of removed reactors until the outermost walk has ended.
    class Walk {
    public:
        explicit Walk(ReactorList& list) : m_list(list) { ++m_list.m_walks; }
        ~Walk() {
            if (--m_list.m_walks == 0) {
                std::erase(m_list.m_reactors, nullptr);
            }
        }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;

    private:
        ReactorList& m_list;
    };

    std::vector<Reactor*> m_reactors;  // not owned; null where one was removed during a walk
    int m_walks = 0;
};

}  // namespace workbench::drawing
