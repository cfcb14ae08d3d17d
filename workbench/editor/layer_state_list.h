#pragma once

#include "workbench/drawing/layer_state_operations.h"

#include <string>
#include <vector>

namespace workbench {

class Document;

/// The layer states of a document, as a dialog shows and changes them. Each change is one step of undo,
/// or part of the running command's.
class LayerStateList {
public:
    /// How states are restored in the active viewport.
    struct Restoring {
        drawing::UnknownLayers unknown = drawing::UnknownLayers::TurnOff;
        drawing::RestoredLook look = drawing::RestoredLook::OfViewport;
    };

    LayerStateList(Document& document, Restoring restoring)
        : m_document(document),
          m_restoring(restoring) {}

    std::vector<std::wstring> names() const;
    /// Empty for a name without a state, too.
    std::wstring descriptionOf(const std::wstring& name) const;

    /// \name Changes
    /// Each answers what is wrong, as a sentence; nothing is, and all is done, if it is empty.
    /// @{
    std::wstring restore(const std::wstring& name);
    /// Saves the layers as they are now as a new state.
    std::wstring save(const std::wstring& name, const std::wstring& description);
    std::wstring rename(const std::wstring& name, const std::wstring& newName);
    std::wstring erase(const std::wstring& name);
    /// @}

private:
    drawing::Database& data() const;
    drawing::ObjectId find(const std::wstring& name) const;

    Document& m_document;
    Restoring m_restoring;
};

}  // namespace workbench
