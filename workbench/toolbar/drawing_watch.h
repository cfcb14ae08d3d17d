#pragma once

#include "workbench/drawing/database/reactors.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>

#include <cstdint>
#include <functional>

namespace workbench {

class Document;
class Editor;

/// Tells whenever the current drawing may look another way: one of its objects or a system variable
/// changed, or another drawing became the current one.
class DrawingWatch final : private VxEditorReactor,
                           private VxApDocManagerReactor,
                           private drawing::DatabaseReactor {
public:
    /// The editor must outlive it.
    DrawingWatch(Editor& editor, std::function<void()> onChange);
    DrawingWatch(const DrawingWatch&) = delete;
    DrawingWatch& operator=(const DrawingWatch&) = delete;
    ~DrawingWatch() override;

private:
    // VxEditorReactor:
    void sysVarChanged(const wchar_t* name, BOOL success) override;
    // VxApDocManagerReactor:
    void documentBecameCurrent(VxApDocument* document) override;
    void documentDestroyed(const wchar_t* fileName) override;
    // DatabaseReactor:
    void objectAppended(const drawing::DbObject& object) override;
    void objectModified(const drawing::DbObject& object) override;
    void objectErased(const drawing::DbObject& object, bool erasing) override;
    void databaseGoodbye(const drawing::Database& database) override;

    void follow();

    Editor& m_editor;
    std::function<void()> m_onChange;
    drawing::Database* m_database = nullptr;  // not owned; null: none is watched
};

}  // namespace workbench
