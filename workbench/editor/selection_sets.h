#pragma once

#include "workbench/drawing/database/object_id.h"

#include <hostapi/vxdb18/entity.h>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace workbench {

class DocumentList;

/// \name The names by which modules know entities
/// @{
VxEdName nameOfEntity(drawing::ObjectId id);
/// Null for a name that is no entity's.
drawing::ObjectId entityNamed(const VxEdName& name);
/// @}

/// The selection sets that modules hold. A set goes when it is freed, or with its drawing; its name
/// never becomes another's.
class SelectionSets {
public:
    /// How many may live at a time.
    static constexpr std::size_t kMostSets = 128;

    using Entities = std::vector<drawing::ObjectId>;

    /// The documents must outlive it.
    explicit SelectionSets(const DocumentList& documents) : m_documents(documents) {}

    /// Keeps entities of one drawing as a set. Nothing while as many sets live as may.
    std::optional<VxEdName> make(Entities entities);
    /// The entities of a set, erased ones too; null for a name that is no living set's.
    const Entities* find(const VxEdName& name);
    /// Ends a set; false for a name that is no living set's.
    bool free(const VxEdName& name);
    std::size_t count();

private:
    void dropClosed();

    const DocumentList& m_documents;
    std::map<std::int64_t, Entities> m_sets;  // by number
    std::int64_t m_lastNumber = 0;
};

}  // namespace workbench
