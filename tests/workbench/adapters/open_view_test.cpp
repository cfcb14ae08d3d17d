#include "workbench/adapters/open_view.h"

#include "tests/workbench/adapters/adapters_fixture.h"

namespace workbench {

class OpenViewTest : public AdaptersTest {};

TEST_F(OpenViewTest, TellsItsNameUnlessItIsToldToFail) {
    drawing::View attic;
    attic.name = "Attic";
    auto* view = openAs<VxDbViewTableRecord>(data().add(attic).id);
    ASSERT_NE(view, nullptr);
    VxString name = L"unread";
    m_bench.faults().fail("VxDbSymbolTableRecord::getName", 13, 1);
    EXPECT_EQ(view->getName(name), 13);
    EXPECT_EQ(name, L"unread");
    EXPECT_EQ(view->getName(name), Zorq::eOk);
    EXPECT_EQ(name, L"Attic");
    view->close();
}

}  // namespace workbench
