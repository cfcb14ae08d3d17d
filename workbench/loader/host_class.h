#pragma once

#include <hostapi/vxdb18/rx_object.h>

#include <deque>
#include <string>
#include <string_view>

namespace workbench {

/// The descriptor of one of the host's classes. All of them are made once and never end, so a
/// module may keep a descriptor's address from one class test to the next.
class HostClass final : public VxRxClass {
public:
    /// `parent` is the class that this one is derived from, null for the root.
    HostClass(std::wstring_view name, const HostClass* parent) : m_name(name), m_parent(parent) {}

    const std::wstring& name() const { return m_name; }
    /// Whether this is the class of a descriptor, or derived from it.
    bool isOrDerivesFrom(const VxRxClass* descriptor) const;

    // VxRxObject:
    bool isKindOf(const VxRxClass* descriptor) const override;

private:
    std::wstring m_name;
    const HostClass* m_parent;  // not owned; null: the root
};

/// All descriptors.
std::deque<HostClass>& hostClasses();
/// The descriptor of a host class by its exact name; null for none.
const HostClass* findHostClass(std::wstring_view name);
/// The name of a descriptor's class; empty for null.
std::wstring_view hostClassName(const VxRxClass* descriptor);

}  // namespace workbench
