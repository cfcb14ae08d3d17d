#include "workbench/toolbar/drawing_watch.h"

#include "workbench/editor/editor.h"

#include <utility>

namespace workbench {

DrawingWatch::DrawingWatch(Editor& editor, std::function<void()> onChange)
    : m_editor(editor),
      m_onChange(std::move(onChange)) {
    m_editor.reactors().add(this);
    m_editor.documents().watch(*this);
}

DrawingWatch::~DrawingWatch() {
    if (m_database != nullptr)
        m_database->removeReactor(this);
    m_editor.documents().unwatch(*this);
    m_editor.reactors().remove(this);
}

/// Watches the current drawing, and that one only.
void DrawingWatch::follow() {
    Document* const document = m_editor.documents().current();
    drawing::Database* const database = document == nullptr ? nullptr : &document->data();
    if (database == m_database)
        return;
    if (m_database != nullptr)
        m_database->removeReactor(this);
    m_database = database;
    if (m_database != nullptr)
        m_database->addReactor(this);
}

void DrawingWatch::sysVarChanged(const wchar_t* /*name*/, BOOL success) {
    if (success != 0)
        m_onChange();
}

void DrawingWatch::documentBecameCurrent(VxApDocument* /*document*/) {
    follow();
    m_onChange();
}

void DrawingWatch::documentDestroyed(const wchar_t* /*fileName*/) {
    follow();
    m_onChange();
}

void DrawingWatch::objectAppended(const drawing::DbObject& /*object*/) {
    m_onChange();
}

void DrawingWatch::objectModified(const drawing::DbObject& /*object*/) {
    m_onChange();
}

void DrawingWatch::objectErased(const drawing::DbObject& /*object*/, bool /*erasing*/) {
    m_onChange();
}

void DrawingWatch::databaseGoodbye(const drawing::Database& /*database*/) {
    m_database = nullptr;
}

}  // namespace workbench
