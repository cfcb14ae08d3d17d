#include "workbench/editor/document.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

using DocumentTest = EditorTest;

TEST_F(DocumentTest, GivesModulesOneDatabaseForItsLife) {
    Document& document = newDocument();
    EXPECT_NE(document.database(), nullptr);
    EXPECT_EQ(document.database(), document.database());
    EXPECT_EQ(document.inputManager(), &document.input());
}

TEST_F(DocumentTest, TellsItsLocks) {
    Document& document = newDocument();
    EXPECT_EQ(document.lockMode(), 0);
    document.locks().lock(DocumentLocks::kWrite, this);
    EXPECT_EQ(document.lockMode(), kDocLockWrite);
}

TEST_F(DocumentTest, FaultsReachItsOperations) {
    Document& document = newDocument();
    m_bench.faults().fail("VxApDocument::database");
    m_bench.faults().fail("VxApDocument::inputManager");
    m_bench.faults().fail("VxApDocument::lockMode");
    document.locks().lock(DocumentLocks::kWrite, this);
    EXPECT_EQ(document.database(), nullptr);
    EXPECT_EQ(document.inputManager(), nullptr);
    EXPECT_EQ(document.lockMode(), 0);
}

TEST_F(DocumentTest, TakesTheVariablesThatItsFileCarriesAsFarAsTheyFit) {
    auto drawing = drawing::makeNewDrawing(77);
    drawing->variables = {{"LUNITS", 4}, {"LUPREC", 99}, {"LIGHTINGUNITS", "two"}, {"NONSENSE", 1}};
    Document document(editor(), L"B", std::move(drawing));
    EXPECT_EQ(document.variables().at(findVariable(L"LUNITS")), Value(4));
    EXPECT_EQ(document.variables().size(), 1U);
}

}  // namespace workbench
