#pragma once

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>
#include <hostapi/zorq/profiles.h>

class VxDaManager;

/// Passes the editor's events on.
class VxDaEditorReactor final : public VxEditorReactor {
public:
    explicit VxDaEditorReactor(VxDaManager* manager) : m_manager(manager) {}

    void commandWillStart(const wchar_t* command) override;
    void commandEnded(const wchar_t* command) override;
    void commandCancelled(const wchar_t* command) override;
    void commandFailed(const wchar_t* command) override;
    void sysVarChanged(const wchar_t* name, BOOL success) override;
    void sysVarWillChange(const wchar_t* name) override;
    void beginQuit() override;
    void quitAborted() override;
    void viewChanged() override;

private:
    VxDaManager* m_manager;  // not owned
};

/// Passes the documents' events on.
class VxDaDocManagerReactor final : public VxApDocManagerReactor {
public:
    explicit VxDaDocManagerReactor(VxDaManager* manager) : m_manager(manager) {}

    void documentCreated(VxApDocument* document) override;
    void documentToBeDestroyed(VxApDocument* document) override;
    void documentDestroyed(const wchar_t* fileName) override;
    void documentBecameCurrent(VxApDocument* document) override;
    void documentToBeActivated(VxApDocument* document) override;

private:
    VxDaManager* m_manager;  // not owned; null: nothing is passed on
};

/// Reads and writes the panels' state when the host turns to another profile or saves one.
class VxDaProfileManagerReactor final : public VxApProfileManagerReactor {
public:
    explicit VxDaProfileManagerReactor(VxDaManager* manager) : m_manager(manager) {}

    void currentProfileChanged(const wchar_t* name) override;
    void currentProfileWillBeSaved(const wchar_t* name) override;

private:
    VxDaManager* m_manager;  // not owned
};
