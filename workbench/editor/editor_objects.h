#pragma once

#include "workbench/loader/registry.h"

#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/editor.h>

namespace workbench {

class Editor;

/// What modules find of the editor in the system registry: "VxEditor", through which they hear its
/// events, and "ZORQ_REGISTERED_COMMANDS", to which they add theirs. In the registry as long as
/// this object lives.
class EditorObjects {
public:
    EditorObjects(Editor& editor, SystemRegistry& registry);
    EditorObjects(const EditorObjects&) = delete;
    EditorObjects& operator=(const EditorObjects&) = delete;
    ~EditorObjects();

    VxEditor& editor() { return m_events; }
    VxEdCommandStack& commandStack() { return m_commandStack; }

private:
    class Events final : public RegisteredObject<VxEditor> {
    public:
        explicit Events(Editor& editor) : RegisteredObject(L"VxEditor"), m_editor(editor) {}
        // VxEditor:
        void addReactor(VxEditorReactor* reactor) override;
        void removeReactor(VxEditorReactor* reactor) override;

    private:
        Editor& m_editor;
    };

    class CommandStack final : public RegisteredObject<VxEdCommandStack> {
    public:
        explicit CommandStack(Editor& editor)
            : RegisteredObject(L"VxEdCommandStack"),
              m_editor(editor) {}
        // VxEdCommandStack:
        Zorq::ErrorStatus addCommand(const wchar_t* group, const wchar_t* globalName,
                                     const wchar_t* localName, int flags, CommandFunction function,
                                     void* uiContext, int fcode, HINSTANCE resources,
                                     void** command) override;
        Zorq::ErrorStatus removeGroup(const wchar_t* group) override;

    private:
        Editor& m_editor;
    };

    SystemRegistry& m_registry;
    Events m_events;
    CommandStack m_commandStack;
};

}  // namespace workbench
