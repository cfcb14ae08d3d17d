#include "workbench/editor/entity_selection.h"

#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace workbench {

namespace {

using Entities = EntitySelection::Entities;
using drawing::ObjectId;

bool isLivingEntity(const Document& document, ObjectId id) {
    const drawing::DbObject* const object = document.data().peek(id);
    return object != nullptr && object->kind() == drawing::RecordKind::Entity &&
           !object->isErased();
}

/// The entities that live, each at its first place.
Entities livingOnce(const Document& document, const Entities& entities) {
    Entities living;
    for (const ObjectId id : entities) {
        const bool isNew = std::find(living.begin(), living.end(), id) == living.end();
        if (isNew && isLivingEntity(document, id))
            living.push_back(id);
    }
    return living;
}

ObjectId entityOfNumber(const Document& document, std::int64_t number) {
    ObjectId id;
    if (number > 0 && number <= std::numeric_limits<std::uint32_t>::max())
        id = ObjectId(document.data().serial(), static_cast<std::uint32_t>(number));
    if (!isLivingEntity(document, id))
        throw std::invalid_argument("there is no entity " + std::to_string(number) + " to select");
    return id;
}

}  // namespace

Entities EntitySelection::entitiesOf(const Document& document, const Value& numbers) {
    // A script's empty table may be either.
    if (numbers.isTable() && numbers.asTable().empty())
        return {};
    Entities entities;
    for (const Value& number : numbers.asList())
        entities.push_back(entityOfNumber(document, number.asInteger()));
    return entities;
}

std::optional<Entities> EntitySelection::ask(Document& document) {
    if (Entities before = takeBefore(document); !before.empty())
        return before;
    m_editor.print(document, L"Select objects:");
    if (std::optional<Entities> queued = queuedAnswer(document))
        return livingOnce(document, *queued);
    const std::optional<Entities> chosen = m_presenter ? m_presenter(document) : std::nullopt;
    return chosen ? std::optional(livingOnce(document, *chosen)) : std::nullopt;
}

bool EntitySelection::selectBefore(Document& document, const Entities& entities) {
    if (document.processor().isActive())
        return false;
    document.pickSet() = livingOnce(document, entities);
    return true;
}

Entities EntitySelection::takeBefore(Document& document) {
    if (!document.processor().mayUsePickSet())
        return {};
    return livingOnce(document, std::exchange(document.pickSet(), {}));
}

std::optional<Entities> EntitySelection::queuedAnswer(const Document& document) {
    const std::optional<Value> queued = m_editor.answers().take("select");
    if (!queued || queued->isNil())
        return {};
    return entitiesOf(document, *queued);
}

}  // namespace workbench
