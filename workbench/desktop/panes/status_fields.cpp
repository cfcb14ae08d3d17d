#include "workbench/desktop/panes/status_fields.h"

#include "workbench/desktop/look/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <QHBoxLayout>
#include <QLabel>

namespace workbench::desktop {

namespace {

constexpr int kGap = 16;         // pixels between two fields
constexpr int kMostWidth = 360;  // pixels of a field

QLabel* addField(QHBoxLayout& row, const QString& name) {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleName(name);
    label->hide();
    row.addWidget(label);
    return label;
}

/// Shows a text, shortened where it is too long; the whole of it is the label's tooltip then.
void put(QLabel& label, const QString& text) {
    const QString shown = label.fontMetrics().elidedText(text, Qt::ElideRight, kMostWidth);
    if (label.text() != shown)
        label.setText(shown);
    const QString tip = shown == text ? QString() : text;
    if (label.toolTip() != tip)
        label.setToolTip(tip);
    label.setVisible(!text.isEmpty());
}

QString spaceOf(const Document& document) {
    const auto* layout =
        document.data().look<drawing::Layout>(drawing::activeLayout(document.data()));
    return layout == nullptr ? QStringLiteral("Model") : toQt(std::string_view(layout->name));
}

/// The names of the running commands, and what the innermost one asks for.
QString commandOf(const CommandProcessor& processor) {
    const QString names = toQt(processor.activeNames());
    const QString prompt = toQt(processor.prompt());
    return prompt.isEmpty() ? names : names + QStringLiteral(" \u2013 ") + prompt;
}

}  // namespace

StatusFields::StatusFields() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(kGap);
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
    put(*m_command, document == nullptr ? QString() : commandOf(document->processor()));
    put(*m_cleanScreen, isClean ? QStringLiteral("Clean screen") : QString());
}

}  // namespace workbench::desktop
