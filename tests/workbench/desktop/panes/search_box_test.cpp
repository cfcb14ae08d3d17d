#include "workbench/desktop/panes/search_box.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"

#include <QCompleter>

namespace workbench::desktop {

class SearchBoxTest : public MirrorTest {
protected:
    SearchBoxTest() {
        m_box.setOnChosen([this](const SearchHit& hit) { m_chosen.push_back(hit.item); });
        m_box.setOnLeft([this] { ++m_left; });
        m_box.show();
    }

    SearchBox m_box{m_workbench};
    std::vector<std::wstring> m_chosen;
    int m_left = 0;
};

TEST_F(SearchBoxTest, FindsWhileTheUserTypesAndEnterChoosesTheBest) {
    typeText(m_box, QStringLiteral("free orbit"));
    ASSERT_FALSE(m_box.hits().empty());
    EXPECT_EQ(m_box.completer()->model()->rowCount(), static_cast<int>(m_box.hits().size()));
    pressKey(m_box, Qt::Key_Return);
    EXPECT_EQ(m_chosen, std::vector<std::wstring>{L"ID_Free_Orbit"});
}

TEST_F(SearchBoxTest, EnterWithoutAHitChoosesNothing) {
    typeText(m_box, QStringLiteral("qqqq"));
    pressKey(m_box, Qt::Key_Return);
    EXPECT_TRUE(m_chosen.empty());
}

TEST_F(SearchBoxTest, EscapeGivesTheSearchUp) {
    typeText(m_box, QStringLiteral("orbit"));
    pressKey(m_box, Qt::Key_Escape);
    EXPECT_TRUE(m_box.text().isEmpty());
    EXPECT_EQ(m_left, 1);
}

}  // namespace workbench::desktop
