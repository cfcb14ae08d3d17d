#include "workbench/adapters/database_adapter.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

class DatabaseAdapterTest : public EditorTest {
protected:
    DatabaseAdapterTest() : m_document(newDocument()) {}

    VxDbDatabase& database() { return *m_document.database(); }

    Document& m_document;
};

TEST_F(DatabaseAdapterTest, TellsWhetherModelSpaceIsActive) {
    EXPECT_TRUE(database().tilemode());
    editor().set(L"TILEMODE", 0);
    EXPECT_FALSE(database().tilemode());
}

TEST_F(DatabaseAdapterTest, TheSheetOfTheCurrentLayoutIsItsViewportNumberOne) {
    EXPECT_TRUE(database().paperSpaceVportId().isNull());
    editor().set(L"TILEMODE", 0);
    const VxDbObjectId sheet = database().paperSpaceVportId();
    ASSERT_TRUE(sheet.isValid());
    const auto* viewport = m_document.data().look<drawing::Viewport>(fromHostId(sheet));
    ASSERT_NE(viewport, nullptr);
    EXPECT_TRUE(viewport->isPaper());
    EXPECT_EQ(viewport->layout.id, drawing::activeLayout(m_document.data()));
}

TEST_F(DatabaseAdapterTest, StepsAndCamerasAreTheDrawings) {
    EXPECT_EQ(database().stepSize(), 6.0);
    EXPECT_EQ(database().stepsPerSec(), 2.0);
    EXPECT_FALSE(database().cameraDisplay());
    write(L"STEPSIZE", 0.25);
    write(L"STEPSPERSEC", 12.5);
    write(L"CAMERADISPLAY", 1);
    newDocument(L"B");
    EXPECT_EQ(database().stepSize(), 0.25);
    EXPECT_EQ(database().stepsPerSec(), 12.5);
    EXPECT_TRUE(database().cameraDisplay());
    EXPECT_EQ(read(L"STEPSIZE"), Value(6.0));
}

TEST_F(DatabaseAdapterTest, TheTableOfTheViewsIsOpenUntilItIsClosed) {
    VxDbViewTable* table = nullptr;
    EXPECT_EQ(database().getSymbolTable(table, VxDbOpenMode::kForRead), Zorq::eOk);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(m_document.openObjects().count(), 1U);
    VxDbViewTable* other = nullptr;
    EXPECT_NE(database().getSymbolTable(other, VxDbOpenMode::kForWrite), Zorq::eOk);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(table->close(), Zorq::eOk);
    EXPECT_EQ(m_document.openObjects().count(), 0U);
}

TEST_F(DatabaseAdapterTest, FaultsGiveTheUsualFailures) {
    editor().set(L"TILEMODE", 0);
    m_bench.faults().fail("VxDbDatabase::paperSpaceVportId");
    EXPECT_TRUE(database().paperSpaceVportId().isNull());
    m_bench.faults().fail("VxDbDatabase::getSymbolTable", 21);
    VxDbViewTable* table = nullptr;
    EXPECT_EQ(database().getSymbolTable(table, VxDbOpenMode::kForRead), 21);
    EXPECT_EQ(table, nullptr);
}

TEST_F(DatabaseAdapterTest, TheCurrentLayerIsTheEditors) {
    drawing::Layer layer;
    layer.name = "Walls";
    const drawing::ObjectId walls = m_document.data().add(layer).id;
    write(L"CLAYER", "Walls");
    EXPECT_EQ(database().clayer(), toHostId(walls));
    m_bench.faults().fail("VxDbDatabase::clayer");
    EXPECT_TRUE(database().clayer().isNull());
}

}  // namespace workbench
