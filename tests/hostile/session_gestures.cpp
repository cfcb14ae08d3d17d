#include "tests/hostile/gesture.h"
#include "tests/hostile/host.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/profiles/profile_store.h"

#include <hostapi/vxdashboard.h>

namespace hostile {

namespace {

using workbench::CommandState;

workbench::DocumentList& documents() {
    return editor().documents();
}

workbench::Document& documentNamed(const std::wstring& name) {
    workbench::Document* const document = documents().find(name);
    if (document == nullptr)
        throw workbench::gestures::GestureError("there is no such document");
    return *document;
}

void activate(const std::wstring& name) {
    documents().activate(documentNamed(name));
    letRun();
}

void switchDocument() {
    activate(L"B");
    activate(L"A");
}

void openAndCloseDocument() {
    documents().create(L"C");
    letRun();
    documents().close(documentNamed(L"C"));
    letRun();
}

void closeAllDocuments() {
    for (const wchar_t* name : {L"B", L"A"}) {
        documents().close(documentNamed(name));
        letRun();
    }
    for (const wchar_t* name : {L"B", L"A"}) {
        documents().create(name);
        letRun();
    }
}

void runCommand(CommandState outcome) {
    editor().beginCommand(L"LINE");
    letRun();
    editor().finishCommand(outcome);
    letRun();
}

void set(const wchar_t* variable, const workbench::Value& value) {
    editor().set(variable, value);
    letRun();
}

void cleanScreen() {
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
}

void quitAndAbort() {
    editor().quitBegin();
    editor().quitAbort();
    letRun();
}

void switchProfile() {
    host().profiles().switchTo("Other");
    letRun();
    host().profiles().switchTo(workbench::ProfileStore::kFirstProfile);
    letRun();
}

void saveProfile() {
    host().profiles().save();
    letRun();
}

void loadAnew(const Stage& stage) {
    stage.unload();
    stage.load();
    type(L"DASHBOARDOLD\n");
}

}  // namespace

std::vector<Gesture> sessionGestures(const Stage& stage) {
    return {
        {"switch between documents", switchDocument},
        {"open and close a document", openAndCloseDocument},
        {"close all documents", closeAllDocuments},
        {"end a command", [] { runCommand(CommandState::Ended); }},
        {"cancel a command", [] { runCommand(CommandState::Cancelled); }},
        {"fail a command", [] { runCommand(CommandState::Failed); }},
        {"set a variable", [] { set(L"CLAYER", "0"); }},
        {"change layers", [] { type(L"_-layer\nnew\nHostile\n\n"); }},
        {"change the view", [] { type(L"_-view\n_top\n"); }},
        {"undo and redo", [] { type(L"_u\n_redo\n"); }},
        {"clean the screen", cleanScreen},
        {"begin to quit", quitAndAbort},
        {"switch the profile", switchProfile},
        {"save the profile", saveProfile},
        {"release the controls", [&stage] { stage.notify(kDashboardReleaseControls); }},
        {"take the panels down and build them",
         [&stage] {
             stage.notify(kDashboardUnload);
             stage.notify(kDashboardReload);
         }},
        {"show once more", [] { type(L"DASHBOARDOLD\n"); }},
        {"load anew", [&stage] { loadAnew(stage); }},
    };
}

}  // namespace hostile
