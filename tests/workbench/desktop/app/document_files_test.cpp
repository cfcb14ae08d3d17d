#include "workbench/desktop/app/document_files.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/base/input_error.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

namespace workbench::desktop {
namespace {

class DocumentFilesTest : public testing::Test {
protected:
    Document& active() { return *m_workbench.editor().documents().active(); }
    void switchRoofOff() { drawing::setByPath(active().data(), "layers.Roof.on", false); }

    Workbench m_workbench{testOptions()};
    DocumentFiles m_files{m_workbench.editor()};
    QTemporaryDir m_temporary;
    std::filesystem::path m_folder = m_temporary.path().toStdString();
};

TEST_F(DocumentFilesTest, AnOpenedDrawingHasItsFileAndIsUnchanged) {
    m_files.open(PROJECT_SOURCE_ROOT "/examples/house.json");
    EXPECT_EQ(m_files.fileOf(active()), PROJECT_SOURCE_ROOT "/examples/house.json");
    EXPECT_EQ(m_files.lastFolder(), PROJECT_SOURCE_ROOT "/examples");
    EXPECT_FALSE(m_files.isChanged(active()));
}

TEST_F(DocumentFilesTest, AChangeCountsUntilItIsSavedOrTakenBack) {
    m_files.open(PROJECT_SOURCE_ROOT "/examples/house.json");
    switchRoofOff();
    EXPECT_TRUE(m_files.isChanged(active()));
    m_workbench.editor().undo();
    EXPECT_FALSE(m_files.isChanged(active()));
    switchRoofOff();
    m_files.save(active(), m_folder / "copy.json");
    EXPECT_FALSE(m_files.isChanged(active()));
    EXPECT_EQ(m_files.fileOf(active()), m_folder / "copy.json");
    EXPECT_EQ(m_files.lastFolder(), m_folder);
    m_files.open(m_folder / "copy.json");
    EXPECT_EQ(drawing::getByPath(active().data(), "layers.Roof.on"), Value(false));
}

TEST_F(DocumentFilesTest, ASaveThatFailsLeavesFileAndDocumentAsTheyAre) {
    m_files.open(PROJECT_SOURCE_ROOT "/examples/house.json");
    switchRoofOff();
    EXPECT_THROW(m_files.save(active(), m_folder / "none" / "x.json"), InputError);
    EXPECT_TRUE(m_files.isChanged(active()));
    EXPECT_EQ(m_files.fileOf(active()), PROJECT_SOURCE_ROOT "/examples/house.json");
}

TEST_F(DocumentFilesTest, NewDrawingsHaveNamesOfTheirOwnAndNoFile) {
    m_files.create();
    m_files.create();
    m_files.follow();
    EXPECT_EQ(active().name(), L"Drawing2");
    EXPECT_TRUE(m_files.fileOf(active()).empty());
    EXPECT_FALSE(m_files.isChanged(active()));
    m_workbench.editor().documents().close(active());
    m_files.follow();
    EXPECT_EQ(active().name(), L"Drawing1");
}

}  // namespace
}  // namespace workbench::desktop
