#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>

namespace workbench {

/// What the toolkit keeps for its objects, apart from their windows: it lives from the first use to
/// the object's end, whether or not the object has a window.
template <class Object, class State>
class StateTable {
public:
    /// The state of an object, made on first use.
    State& of(const Object* object) {
        std::unique_ptr<State>& state = m_states[object];
        if (!state)
            state = std::make_unique<State>();
        return *state;
    }
    /// The state of an object; null if it has none.
    State* find(const Object* object) const {
        const auto found = m_states.find(object);
        return found == m_states.end() ? nullptr : found->second.get();
    }
    /// Ends the state of an object. What it owns may still look into the table while it ends.
    void erase(const Object* object) {
        const auto found = m_states.find(object);
        if (found == m_states.end())
            return;
        const std::unique_ptr<State> ending = std::move(found->second);
        m_states.erase(found);
    }
    /// The number of objects with a state.
    std::size_t size() const { return m_states.size(); }
    /// The first object that meets a condition on (object, state); null for none.
    template <class Condition>
    const Object* findIf(Condition condition) const {
        for (const auto& entry : m_states) {
            if (condition(entry.first, *entry.second))
                return entry.first;
        }
        return nullptr;
    }

private:
    std::unordered_map<const Object*, std::unique_ptr<State>> m_states;
};

}  // namespace workbench
