#pragma once

#include <string>
#include <vector>

namespace workbench {

class Document;
class Editor;

/// The regeneration of a document: its drawing is drawn anew from its records, or that stands due.
class Regeneration {
public:
    bool isDue() const { return m_due; }

    /// After a change of layers: does it, or while REGENMODE is 0 lets it stand due.
    void afterLayers(Editor& editor, const Document& document,
                     const std::vector<std::string>& layers);
    /// Does it now: a record of the journal.
    void run(Editor& editor, const Document& document, const std::vector<std::string>& layers = {});

private:
    bool m_due = false;
};

}  // namespace workbench
