#include "workbench/loader/host_class.h"

#include "workbench/core/host_call.h"

#include <algorithm>

namespace workbench {

namespace {

struct ClassRow {
    std::wstring_view name;
    std::wstring_view parent;  // stands above its children; empty: the root
};

constexpr ClassRow kClasses[] = {
    {L"VxRxObject", L""},
    {L"VxRxClass", L"VxRxObject"},
    {L"VxRxDictionary", L"VxRxObject"},
    {L"VxRxDynamicLinker", L"VxRxObject"},
    {L"VxRxService", L"VxRxObject"},
    {L"VxRxEventReactor", L"VxRxObject"},
    {L"VxApDocManagerReactor", L"VxRxObject"},
    {L"VxEdCommandStack", L"VxRxObject"},
    {L"VxEditor", L"VxRxObject"},
    {L"VxEditorReactor", L"VxRxEventReactor"},
};

const HostClass* findIn(const std::deque<HostClass>& classes, std::wstring_view name) {
    const auto found =
        std::find_if(classes.begin(), classes.end(),
                     [name](const HostClass& candidate) { return candidate.name() == name; });
    return found == classes.end() ? nullptr : &*found;
}

std::deque<HostClass> makeClasses() {
    std::deque<HostClass> classes;
    for (const ClassRow& row : kClasses)
        classes.emplace_back(row.name, findIn(classes, row.parent));
    return classes;
}

}  // namespace

bool HostClass::isOrDerivesFrom(const VxRxClass* descriptor) const {
    if (descriptor == nullptr)
        return false;
    for (const HostClass* step = this; step != nullptr; step = step->m_parent) {
        if (step == descriptor)
            return true;
    }
    return false;
}

bool HostClass::isKindOf(const VxRxClass* descriptor) const {
    HostCall call("VxRxObject::isKindOf", {L"VxRxClass", hostClassName(descriptor)});
    const HostClass* classOfClasses = findHostClass(L"VxRxClass");
    return call.returns(!call.failed() && classOfClasses->isOrDerivesFrom(descriptor));
}

std::deque<HostClass>& hostClasses() {
    static std::deque<HostClass> classes = makeClasses();
    return classes;
}

const HostClass* findHostClass(std::wstring_view name) {
    return findIn(hostClasses(), name);
}

std::wstring_view hostClassName(const VxRxClass* descriptor) {
    const auto* hostClass = dynamic_cast<const HostClass*>(descriptor);
    return hostClass == nullptr ? std::wstring_view() : std::wstring_view(hostClass->name());
}

}  // namespace workbench
