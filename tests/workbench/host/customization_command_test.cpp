#include "workbench/host/customization_command.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/menu/menu_host.h"

namespace workbench {

TEST_F(EditorTest, CustomizationOpensOnThePanelThatItWasAskedForOnce) {
    newDocument();
    m_bench.menu().customization().selectPanel(L"ZORQ", L"Layers");
    m_bench.journal().take();
    EXPECT_TRUE(run(L"_.CUI "));
    EXPECT_TRUE(run(L"_.CUI "));
    const std::vector<JournalRecord> dialogs = m_bench.journal().take("dialog");
    ASSERT_EQ(dialogs.size(), 2U);
    EXPECT_EQ(dialogs[0].field("name"), Value("Customize User Interface"));
    EXPECT_EQ(dialogs[0].field("panel"), Value("Layers"));
    EXPECT_EQ(dialogs[0].field("menuGroup"), Value("ZORQ"));
    EXPECT_EQ(dialogs[1].field("name"), Value("Customize User Interface"));
    EXPECT_TRUE(dialogs[1].field("panel").isNil());
    EXPECT_EQ(events(), (Lines{"started CUI", "ended CUI", "started CUI", "ended CUI"}));
}

}  // namespace workbench
