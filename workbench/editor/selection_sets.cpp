#include "workbench/editor/selection_sets.h"

#include "workbench/editor/document_list.h"

#include <utility>

namespace workbench {

namespace {

/// What the second number of a name says that it names.
constexpr std::int64_t kEntity = 1;
constexpr std::int64_t kSet = 2;

constexpr unsigned kHandleBits = 32;

}  // namespace

VxEdName nameOfEntity(drawing::ObjectId id) {
    const std::uint64_t number = (std::uint64_t{id.database()} << kHandleBits) | id.handle();
    return {{static_cast<std::int64_t>(number), kEntity}};
}

drawing::ObjectId entityNamed(const VxEdName& name) {
    if (name.number[1] != kEntity)
        return {};
    const auto number = static_cast<std::uint64_t>(name.number[0]);
    return {static_cast<std::uint32_t>(number >> kHandleBits), static_cast<std::uint32_t>(number)};
}

std::optional<VxEdName> SelectionSets::make(Entities entities) {
    dropClosed();
    if (m_sets.size() >= kMostSets)
        return {};
    m_sets.emplace(++m_lastNumber, std::move(entities));
    return VxEdName{{m_lastNumber, kSet}};
}

const SelectionSets::Entities* SelectionSets::find(const VxEdName& name) {
    dropClosed();
    const auto found = name.number[1] == kSet ? m_sets.find(name.number[0]) : m_sets.end();
    return found == m_sets.end() ? nullptr : &found->second;
}

bool SelectionSets::free(const VxEdName& name) {
    dropClosed();
    return name.number[1] == kSet && m_sets.erase(name.number[0]) > 0;
}

std::size_t SelectionSets::count() {
    dropClosed();
    return m_sets.size();
}

/// A drawing that was closed takes its sets along.
void SelectionSets::dropClosed() {
    std::erase_if(m_sets, [this](const auto& set) {
        const Entities& entities = set.second;
        return !entities.empty() &&
               m_documents.findBySerial(entities.front().database()) == nullptr;
    });
}

}  // namespace workbench
