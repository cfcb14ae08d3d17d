#include "workbench/desktop/mirror/tree_painter.h"

#include "tests/workbench/desktop/mirror/dropdown_mirror_fixture.h"

namespace workbench::desktop {

class TreePainterTest : public DropdownMirrorTest {
protected:
    TreePainterTest() { clickField(); }

    /// The colours in a part of the tree, each once.
    bool has(const CRect& rect, const QColor& colour) {
        const QImage image =
            tree().grab(QRect(rect.left, rect.top, rect.Width(), rect.Height())).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    }
    CRect labelRect(HTREEITEM item) { return treeWidget().partsOf(item).label; }
};

TEST_F(TreePainterTest, TheSelectedRowIsMarkedInTheColourOfTheKeyboard) {
    const HTREEITEM doors = m_combo.dropdown->doors;
    EXPECT_FALSE(has(labelRect(doors), m_stage.look->accent));
    click(tree(), labelOf(doors));
    rest();
    EXPECT_TRUE(has(labelRect(doors), m_stage.look->accent));
    EXPECT_FALSE(has(labelRect(m_combo.dropdown->walls), m_stage.look->accent));
}

TEST_F(TreePainterTest, BothThemesHaveTheirColours) {
    const CRect all{0, 0, 140, 60};
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        m_stage.look = &lookOf(shade);
        EXPECT_TRUE(has(all, m_stage.look->field));
        EXPECT_TRUE(has(all, m_stage.look->edge));
    }
}

TEST_F(TreePainterTest, OnlyAnItemWithOthersInItHasAButton) {
    // In the light theme lines have the colour of edges.
    m_stage.look = &lookOf(Shade::Dark);
    const CRect button = treeWidget().partsOf(m_combo.dropdown->walls).button;
    EXPECT_TRUE(has(button, m_stage.look->edge));
    CRect beside = labelRect(m_combo.dropdown->doors);
    beside.left -= kTreeIndent;
    beside.right = beside.left + kTreeIndent;
    EXPECT_FALSE(has(beside, m_stage.look->edge));
}

TEST_F(TreePainterTest, PicturesComeFromTheTreesList) {
    CImageList list;
    list.Create(16, 16, ILC_COLOR24, 0, 1);
    PngPicture red;
    red.width = 16;
    red.height = 16;
    for (int pixel = 0; pixel < 256; ++pixel)
        red.rgba.insert(red.rgba.end(), {255, 0, 0, 255});
    list.SetImageCount(1);
    const HICON icon = windows().gdi().addIcon({red, {}});
    list.Replace(0, icon);
    DestroyIcon(icon);
    m_combo.dropdown->tree.SetImageList(&list, TVSIL_NORMAL);
    rest();
    EXPECT_TRUE(has(treeWidget().partsOf(m_combo.dropdown->all).picture, QColor(255, 0, 0)));
    EXPECT_FALSE(has(treeWidget().partsOf(m_combo.dropdown->walls).picture, QColor(255, 0, 0)));
    m_combo.dropdown->tree.SetImageList(nullptr, TVSIL_NORMAL);
}

}  // namespace workbench::desktop
