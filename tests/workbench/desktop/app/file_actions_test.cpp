#include "workbench/desktop/app/file_actions.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"
#include "workbench/drawing/path_access.h"

#include <QFile>
#include <QTemporaryDir>

namespace workbench::desktop {

class FileActionsTest : public MainWindowTest {};

TEST_F(FileActionsTest, AChangedDocumentIsOnlyClosedWhenItsUserAgrees) {
    QStringList questions;
    QMessageBox::StandardButton answer = QMessageBox::Cancel;
    m_window.fileActions().setAsker([&](const QString& question) {
        questions.append(question);
        return answer;
    });
    Document& house = *editor().documents().active();
    m_window.stage().pump.act([&] { drawing::setByPath(house.data(), "layers.Roof.on", false); });
    line(menu("&Document"), QStringLiteral("&Close")).trigger();
    EXPECT_EQ(questions, QStringList{QStringLiteral("house.json has changed. Save it?")});
    EXPECT_EQ(editor().documents().count(), 1);
    EXPECT_FALSE(m_window.close());
    EXPECT_TRUE(m_window.isVisible());
    line(menu("&Edit"), QStringLiteral("&Undo")).trigger();
    line(menu("&Document"), QStringLiteral("&Close")).trigger();
    EXPECT_EQ(questions.size(), 2) << "nothing to lose any more";
    EXPECT_EQ(editor().documents().count(), 0);
}

TEST_F(FileActionsTest, ADrawingIsSavedUnderANameAndOpenedFromThere) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("mine"));
    QStringList starts;
    m_window.fileActions().setChooser([&](bool saving, const QString& startsAt) {
        starts.append(startsAt);
        return saving ? file : file + QStringLiteral(".json");
    });
    enter("LUPREC");
    enter("7");
    line(menu("&Document"), QStringLiteral("Save &as...")).trigger();
    EXPECT_TRUE(QFile::exists(file + QStringLiteral(".json"))) << "the ending is added";
    line(menu("&Document"), QStringLiteral("&Close")).trigger();
    line(menu("&Document"), QStringLiteral("&Open...")).trigger();
    EXPECT_EQ(starts.back(), folder.path());
    ASSERT_NE(editor().documents().active(), nullptr);
    EXPECT_EQ(editor().documents().active()->name(), L"mine.json");
}

/// Closes the document from inside of its command.
class ClosingReactor final : public VxEditorReactor {
public:
    explicit ClosingReactor(FileActions& files, Document& document)
        : m_files(files),
          m_document(document) {}
    void commandWillStart(const wchar_t* /*name*/) override {
        hasClosed = m_files.close(m_document);
    }

    bool hasClosed = true;

private:
    FileActions& m_files;
    Document& m_document;
};

TEST_F(FileActionsTest, ADocumentWhoseCommandIsAtWorkStaysOpen) {
    ClosingReactor closing(m_window.fileActions(), *editor().documents().active());
    editor().reactors().add(&closing);
    enter("LUPREC");
    enter("7");
    editor().reactors().remove(&closing);
    EXPECT_FALSE(closing.hasClosed);
    EXPECT_EQ(editor().documents().count(), 1);
}

}  // namespace workbench::desktop
