#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/object_id.h"

#include <functional>
#include <optional>
#include <vector>

namespace workbench {

class Document;
class Editor;

/// The user's choice of entities. The answer comes from the selection that was made before a command,
/// where the command may use it, or from the queue of the kind "select" (a list of entity numbers), or
/// from whoever shows the drawing; nothing: the user cancelled.
class EntitySelection {
public:
    using Entities = std::vector<drawing::ObjectId>;

    explicit EntitySelection(Editor& editor) : m_editor(editor) {}

    /// The living entities of a list of numbers. Throws std::invalid_argument for a number without one,
    /// `ValueError` for anything else than a list.
    static Entities entitiesOf(const Document& document, const Value& numbers);

    /// Asks for entities of a document; each of them lives and comes once. Throws
    /// std::invalid_argument for a queued answer that names none.
    std::optional<Entities> ask(Document& document);

    /// The selection that is made while no command runs; replaces the one before. It is there until a
    /// command takes it or one that can't use it starts. False, with nothing changed, in a command.
    bool selectBefore(Document& document, const Entities& entities);
    /// The present selection made before a command, as far as it may be used now; it is gone afterwards.
    Entities takeBefore(Document& document);

    /// Has the user choose in a document that is shown. Null leaves it to the queue.
    using Presenter = std::function<std::optional<Entities>(Document& document)>;
    void setPresenter(Presenter presenter) { m_presenter = std::move(presenter); }

private:
    std::optional<Entities> queuedAnswer(const Document& document);

    Editor& m_editor;
    Presenter m_presenter;
};

}  // namespace workbench
