#include "workbench/windows/window_parts.h"

#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class WindowPartsTest : public WindowTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(make(outer) && make(inner, &outer));
        ASSERT_TRUE(makeEdit(innerEdit, inner, 1) && makeEdit(first, outer, 2));
        ASSERT_TRUE(makeEdit(second, outer, 3));
        windows().setName(outer.m_hWnd, "Outer");
        windows().setName(inner.m_hWnd, "Inner");
    }

    CWnd outer;
    CWnd inner;
    CWnd innerEdit;
    CWnd first;
    CWnd second;
};

}  // namespace

TEST_F(WindowPartsTest, PartsAreCountedWithinTheirOwnOwner) {
    EXPECT_EQ(partName(windows(), innerEdit.m_hWnd), "edit");
    EXPECT_EQ(partName(windows(), first.m_hWnd), "edit");
    EXPECT_EQ(partName(windows(), second.m_hWnd), "edit2");
}

TEST_F(WindowPartsTest, ANamedWindowIsNoPart) {
    EXPECT_EQ(partName(windows(), inner.m_hWnd), "");
}

TEST_F(WindowPartsTest, AnotherClassIsCalledByItsOwnName) {
    CWnd other;
    ASSERT_TRUE(make(other, &outer));
    EXPECT_EQ(partName(windows(), other.m_hWnd), "Test");
}

TEST_F(WindowPartsTest, APartIsFoundByItsName) {
    EXPECT_EQ(findPart(windows(), outer.m_hWnd, "edit2"), second.m_hWnd);
    EXPECT_EQ(findPart(windows(), inner.m_hWnd, "edit"), innerEdit.m_hWnd);
    EXPECT_EQ(findPart(windows(), inner.m_hWnd, "edit2"), nullptr);
}

}  // namespace workbench
