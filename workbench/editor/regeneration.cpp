#include "workbench/editor/regeneration.h"

#include "workbench/base/text.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

void note(Editor& editor, const Document& document, const char* event,
          const std::vector<std::string>& layers) {
    Value::List names;
    for (const std::string& layer : layers)
        names.push_back(layer);
    editor.journal().add(
        "regen", {{"event", event}, {"layers", names}, {"document", toUtf8(document.name())}});
}

}  // namespace

void Regeneration::afterLayers(Editor& editor, const Document& document,
                               const std::vector<std::string>& layers) {
    if (editor.read(L"REGENMODE") != Value(0)) {
        run(editor, document, layers);
        return;
    }
    m_due = true;
    note(editor, document, "due", layers);
}

void Regeneration::run(Editor& editor, const Document& document,
                       const std::vector<std::string>& layers) {
    m_due = false;
    note(editor, document, "done", layers);
}

}  // namespace workbench
