#pragma once

#include <hostapi/qrui18/theme.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>
#include <hostapi/zorq/profiles.h>

namespace hostile {

/// Reaches a point with each event of the editor.
class EditorEvents final : public VxEditorReactor {
public:
    EditorEvents();
    EditorEvents(const EditorEvents&) = delete;
    EditorEvents& operator=(const EditorEvents&) = delete;
    ~EditorEvents() override;

    // VxEditorReactor:
    void commandWillStart(const wchar_t* command) override;
    void commandEnded(const wchar_t* command) override;
    void commandCancelled(const wchar_t* command) override;
    void commandFailed(const wchar_t* command) override;
    void sysVarChanged(const wchar_t* name, BOOL success) override;
    void sysVarWillChange(const wchar_t* name) override;
    void beginQuit() override;
    void quitAborted() override;
    void viewChanged() override;
};

/// Reaches a point with each event of a document's input; registered with all documents.
class InputEvents final : public VxEdInputContextReactor {
public:
    InputEvents();
    InputEvents(const InputEvents&) = delete;
    InputEvents& operator=(const InputEvents&) = delete;
    ~InputEvents() override;

    // VxEdInputContextReactor:
    void beginInput() override;
    void endInput() override;
    void beginQuiescentState() override;
    void endQuiescentState() override;
};

/// Reaches a point with each event of the documents, and hears the input of those to come.
class DocumentEvents final : public VxApDocManagerReactor {
public:
    explicit DocumentEvents(InputEvents& input);
    DocumentEvents(const DocumentEvents&) = delete;
    DocumentEvents& operator=(const DocumentEvents&) = delete;
    ~DocumentEvents() override;

    // VxApDocManagerReactor:
    void documentCreated(VxApDocument* document) override;
    void documentToBeDestroyed(VxApDocument* document) override;
    void documentDestroyed(const wchar_t* fileName) override;
    void documentBecameCurrent(VxApDocument* document) override;
    void documentToBeActivated(VxApDocument* document) override;

private:
    InputEvents& m_input;
};

/// Reaches a point with each event of the profiles.
class ProfileEvents final : public VxApProfileManagerReactor {
public:
    ProfileEvents();
    ProfileEvents(const ProfileEvents&) = delete;
    ProfileEvents& operator=(const ProfileEvents&) = delete;
    ~ProfileEvents() override;

    // VxApProfileManagerReactor:
    void currentProfileChanged(const wchar_t* name) override;
    void currentProfileWillBeSaved(const wchar_t* name) override;
};

/// Reaches a point whenever the theme of tool panels changes.
class ThemeEvents final : public CQrUiThemeModifiedReactor {
public:
    ThemeEvents();
    ThemeEvents(const ThemeEvents&) = delete;
    ThemeEvents& operator=(const ThemeEvents&) = delete;
    ~ThemeEvents() override;

    // CQrUiThemeModifiedReactor:
    void ThemeModified(int element) override;

private:
    CQrUiTheme* m_theme;  // held
};

/// All reactors of the module, added on construction and removed at the end.
struct EventReactors {
    EditorEvents editor;
    InputEvents input;
    DocumentEvents documents{input};
    ProfileEvents profiles;
    ThemeEvents theme;
};

}  // namespace hostile
