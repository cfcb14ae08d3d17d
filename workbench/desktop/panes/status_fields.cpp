#include "workbench/desktop/panes/status_fields.h"

#include "workbench/commands/command_processor.h"
#include "workbench/core/workbench.h"
#include "workbench/desktop/look/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/editor/editor.h"

#include <QHBoxLayout>
#include <QLabel>

namespace workbench::desktop {

namespace {

QLabel* addField(QHBoxLayout& row, const QString& name) {
    auto* label = new QLabel;
    label->setAccessibleName(name);
    row.addWidget(label);
    return label;
}

void put(QLabel& label, const QString& text) {
    if (label.text() != text)
        label.setText(text);
}

QString spaceOf(const Document& document) {
    const auto* layout =
        document.data().look<drawing::Layout>(drawing::activeLayout(document.data()));
    return layout == nullptr ? QStringLiteral("Model") : toQt(std::string_view(layout->name));
}

}  // namespace

StatusFields::StatusFields() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(16);
    m_document = addField(*row, QStringLiteral("Document"));
    m_space = addField(*row, QStringLiteral("Space"));
    m_command = addField(*row, QStringLiteral("Running command"));
    m_cleanScreen = addField(*row, QStringLiteral("Clean screen"));
}

void StatusFields::refresh(Workbench& workbench) {
    Editor& editor = workbench.editor();
    const Document* const document = editor.documents().active();
    const bool isClean = editor.read(L"CleanScreenState") == Value(1);
    put(*m_document, document == nullptr ? QStringLiteral("No drawing") : toQt(document->name()));
    put(*m_space, document == nullptr ? QString() : spaceOf(*document));
    put(*m_command, document == nullptr ? QString() : toQt(document->processor().activeNames()));
    put(*m_cleanScreen, isClean ? QStringLiteral("Clean screen") : QString());
}

}  // namespace workbench::desktop
