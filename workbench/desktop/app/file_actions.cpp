#include "workbench/desktop/app/file_actions.h"

#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/look/text.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <QFileDialog>

namespace workbench::desktop {

namespace {

QString filter() {
    return QStringLiteral("Drawings (*.json)");
}

QString toQt(const std::filesystem::path& path) {
    return desktop::toQt(std::string_view(path.string()));
}

}  // namespace

FileActions::FileActions(MainWindow& window)
    : m_window(window),
      m_files(window.workbench().editor()),
      m_ask([this](const QString& question) {
          return QMessageBox::question(
              &m_window, QStringLiteral("Save changes"), question,
              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
      }),
      m_choose([this](bool saving, const QString& startsAt) {
          return saving ? QFileDialog::getSaveFileName(
                              &m_window, QStringLiteral("Save the drawing"), startsAt, filter())
                        : QFileDialog::getOpenFileName(&m_window, QStringLiteral("Open a drawing"),
                                                       startsAt, filter());
      }) {}

Document* FileActions::active() const {
    return m_window.workbench().editor().documents().active();
}

void FileActions::create() {
    m_window.stage().pump.act([this] { m_files.create(); });
}

void FileActions::open() {
    const QString file = m_choose(false, toQt(m_files.lastFolder()));
    if (!file.isEmpty())
        m_window.stage().pump.act([this, &file] { m_files.open(file.toStdString()); });
}

bool FileActions::save() {
    Document* const document = active();
    return document != nullptr && saveOne(*document);
}

bool FileActions::saveAs() {
    Document* const document = active();
    return document != nullptr && saveOneAs(*document);
}

bool FileActions::saveOne(Document& document) {
    const std::filesystem::path file = m_files.fileOf(document);
    return file.empty() ? saveOneAs(document) : saveTo(document, file);
}

/// A dialog begins where the document lies, or with its name in the last folder.
QString FileActions::startOf(const Document* document) const {
    const std::filesystem::path file = m_files.fileOf(*document);
    if (!file.empty())
        return toQt(file);
    return toQt(m_files.lastFolder() / (desktop::toQt(document->name()).toStdString() + ".json"));
}

bool FileActions::saveOneAs(Document& document) {
    QString file = m_choose(true, startOf(&document));
    if (file.isEmpty())
        return false;
    if (!file.endsWith(QLatin1String(".json")))
        file += QLatin1String(".json");
    return saveTo(document, file.toStdString());
}

bool FileActions::saveTo(Document& document, const std::filesystem::path& file) {
    bool isSaved = false;
    m_window.stage().pump.act([&] {
        m_files.save(document, file);
        isSaved = true;
    });
    if (isSaved)
        m_window.tell(QStringLiteral("Saved: ") + toQt(file));
    return isSaved;
}

bool FileActions::mayLeave(Document& document) {
    if (!m_files.isChanged(document))
        return true;
    switch (m_ask(QStringLiteral("%1 has changed. Save it?").arg(desktop::toQt(document.name())))) {
    case QMessageBox::Save:
        return saveOne(document);
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool FileActions::close(Document& document) {
    if (document.processor().isAtWork()) {
        m_window.tell(QStringLiteral("%1 can't be closed while its command %2 is at work.")
                          .arg(desktop::toQt(document.name()),
                               desktop::toQt(document.processor().activeNames())));
        return false;
    }
    if (!mayLeave(document))
        return false;
    m_window.stage().pump.act([&] { m_window.workbench().editor().documents().close(document); });
    return true;
}

void FileActions::closeActive() {
    if (Document* const document = active())
        close(*document);
}

bool FileActions::mayLeaveAll() {
    for (Document* document : m_window.workbench().editor().documents().all()) {
        if (!mayLeave(*document))
            return false;
    }
    return true;
}

}  // namespace workbench::desktop
