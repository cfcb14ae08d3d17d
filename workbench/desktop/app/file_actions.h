#pragma once

#include "workbench/desktop/app/document_files.h"

#include <QMessageBox>
#include <QString>
#include <functional>

namespace workbench::desktop {

class MainWindow;

/// What the window's user does with documents: files are asked for, and changes are never lost
/// without a question.
class FileActions {
public:
    explicit FileActions(MainWindow& window);
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    DocumentFiles& files() { return m_files; }
    void create();
    void open();
    /// Saves the document in front. False if that failed or was given up.
    bool save();
    bool saveAs();
    /// Closes a document. False, and it stays, if its user changed their mind.
    bool close(Document& document);
    /// Closes the document in front, if there is one.
    void closeActive();
    /// Asks for each changed document what is to become of it. False if the user changed their mind.
    bool mayLeaveAll();

    /// In place of the screen, for a test: the answer to whether changes are to be saved, and the file
    /// to open or to save to, empty for none.
    using Asker = std::function<QMessageBox::StandardButton(const QString& question)>;
    using Chooser = std::function<QString(bool saving, const QString& startsAt)>;
    void setAsker(Asker asker) { m_ask = std::move(asker); }
    void setChooser(Chooser chooser) { m_choose = std::move(chooser); }

private:
    Document* active() const;
    QString startOf(const Document* document) const;
    bool saveTo(Document& document, const std::filesystem::path& file);
    bool saveOne(Document& document);
    bool saveOneAs(Document& document);
    bool mayLeave(Document& document);

    MainWindow& m_window;
    DocumentFiles m_files;
    Asker m_ask;
    Chooser m_choose;
};

}  // namespace workbench::desktop
