#pragma once

#include <compare>
#include <cstdint>

namespace workbench::drawing {

/// Names one object of one database for as long as the program runs: ids are never reused, also
/// not after the object has been erased. A default-constructed id is null.
class ObjectId {
public:
    constexpr ObjectId() = default;

    /// `database` is the serial of the database, `handle` the number of the object in it, from 1.
    constexpr ObjectId(std::uint32_t database, std::uint32_t handle)
        : m_database(database),
          m_handle(handle) {}

    constexpr bool isNull() const { return m_handle == 0; }

    /// Serial of the database that the object belongs to; 0 for a null id.
    constexpr std::uint32_t database() const { return m_database; }

    /// Number of the object in its database, from 1; 0 for a null id.
    constexpr std::uint32_t handle() const { return m_handle; }

    friend constexpr auto operator<=>(const ObjectId&, const ObjectId&) = default;

private:
    std::uint32_t m_database = 0;
    std::uint32_t m_handle = 0;
};

}  // namespace workbench::drawing
