#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace workbench {

/// Owned objects by handle. A handle holds a place and a generation, so it goes stale with its
/// object: it never finds another one, and is never given out again.
///
/// `Handle` is a pointer to an opaque type or an unsigned number; the null handle finds nothing.
template <class Handle, class Object>
class HandleTable {
public:
    /// Takes an object over and returns its handle.
    Handle add(std::unique_ptr<Object> object) {
        if (m_free.empty()) {
            m_free.push_back(m_slots.size());
            m_slots.emplace_back();
        }
        const std::size_t place = m_free.back();
        m_free.pop_back();
        m_slots[place].object = std::move(object);
        ++m_count;
        return handleOf(place);
    }

    /// The object of a handle; null for a stale one.
    Object* find(Handle handle) const {
        const Slot* slot = findSlot(handle);
        return slot == nullptr ? nullptr : slot->object.get();
    }

    /// Hands an object out; its handle is stale from now on. Null for a stale handle.
    std::unique_ptr<Object> take(Handle handle) {
        const Slot* found = findSlot(handle);
        if (found == nullptr)
            return nullptr;
        Slot& slot = m_slots[placeOf(handle)];
        ++slot.generation;
        --m_count;
        m_free.push_back(placeOf(handle));
        return std::move(slot.object);
    }

    /// How many objects live.
    std::size_t count() const { return m_count; }

private:
    struct Slot {
        std::uintptr_t generation = 1;
        std::unique_ptr<Object> object;  // null: the place is free
    };

    static constexpr unsigned kPlaceBits = 20;

    static std::uintptr_t numberOf(Handle handle) {
        if constexpr (std::is_pointer_v<Handle>)
            return reinterpret_cast<std::uintptr_t>(handle);
        else
            return handle;
    }

    static std::size_t placeOf(Handle handle) {
        return numberOf(handle) & ((std::uintptr_t{1} << kPlaceBits) - 1);
    }

    Handle handleOf(std::size_t place) const {
        const std::uintptr_t number = (m_slots[place].generation << kPlaceBits) | place;
        if constexpr (std::is_pointer_v<Handle>)
            return reinterpret_cast<Handle>(number);
        else
            return number;
    }

    const Slot* findSlot(Handle handle) const {
        const std::size_t place = placeOf(handle);
        if (place >= m_slots.size())
            return nullptr;
        const Slot& slot = m_slots[place];
        const bool isLiving =
            slot.object != nullptr && slot.generation == (numberOf(handle) >> kPlaceBits);
        return isLiving ? &slot : nullptr;
    }

    std::vector<Slot> m_slots;
    std::vector<std::size_t> m_free;  // places without an object
    std::size_t m_count = 0;
};

}  // namespace workbench
