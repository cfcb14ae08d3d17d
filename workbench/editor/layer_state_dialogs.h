#pragma once

#include "workbench/base/value.h"
#include "workbench/editor/layer_state_list.h"

#include <string>

namespace workbench {

class Editor;

/// Shows the dialogs of the layer states to a user.
class LayerStatePresenter {
public:
    virtual ~LayerStatePresenter() = default;
    /// Both: whether the dialog was closed with a choice, a state that was restored or saved.
    virtual bool manage(LayerStateList& states) = 0;
    virtual bool save(LayerStateList& states) = 0;
};

/// The dialogs of the layer states in the current document. A table in the queue of the kind "dialog"
/// answers first: the manager restores the state `name` or, without one, is closed; the other dialog
/// saves the layers under `name` with `description`. Then comes whoever shows them to a user, or they
/// are cancelled. What can't be done is said above the command line.
class LayerStateDialogs {
public:
    explicit LayerStateDialogs(Editor& editor) : m_editor(editor) {}

    /// \name The dialogs
    /// True if it was closed with a choice that could be carried out; false without a document, too.
    /// `owner` is the name of the window that it lies over, empty for none that has one.
    /// @{
    bool manage(const std::string& owner = {});
    bool save(const std::string& owner = {});
    /// @}

    /// Null leaves the dialogs to the queue. Not owned; must live until then.
    void setPresenter(LayerStatePresenter* presenter) { m_presenter = presenter; }

private:
    /// One of the dialogs: what a queued table does, and how a user gets it.
    struct Dialog;

    bool open(const Dialog& dialog, const std::string& owner);
    bool answer(const Dialog& dialog, const Document& document, LayerStateList& states,
                const Value& table);
    LayerStateList::Restoring restoring() const;

    Editor& m_editor;
    LayerStatePresenter* m_presenter = nullptr;  // not owned; null: nobody shows them
};

}  // namespace workbench
