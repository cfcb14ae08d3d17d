#include "workbench/desktop/mirror/window_painter.h"

#include "tests/workbench/desktop/mirror/mirror_fixture.h"
#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/panel_widget.h"

#include <QImage>
#include <QPainter>

namespace workbench::desktop {

class WindowPainterTest : public MirrorTest {
protected:
    /// What a screen with so many pixels a logical one shows of a window.
    QImage painted(HWND window, double pixelRatio) {
        const QSizeF size = widget(window)->size() * pixelRatio;
        QImage image(size.toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(pixelRatio);
        QPainter painter(&image);
        paintWindow(painter, m_stage, *windows().find(window));
        return image;
    }
    /// A picture of the host's library as it is drawn there, on the ground of a title.
    QImage drawn(const char* key, int pixels) {
        const auto bytes = m_workbench.modules()
                               .libraries()
                               .resources(m_workbench.modules().libraries().find(L"ZORQbtn.xmx"))
                               .findPicture(key, static_cast<std::uint32_t>(pixels));
        const QImage picture = QImage::fromData(bytes->data, static_cast<int>(bytes->length));
        QImage ground(picture.size(), QImage::Format_RGB32);
        ground.fill(m_stage.look->title);
        QPainter(&ground).drawImage(0, 0, picture);
        return ground;
    }
    /// The part of a panel that its title's picture takes.
    static QImage pictureOf(const QImage& panel) {
        const auto ratio = static_cast<int>(panel.devicePixelRatio());
        constexpr int kEdge = (PanelWidget::kTitleHeight - 16) / 2;
        QImage part = panel.copy(kEdge * ratio, kEdge * ratio, 16 * ratio, 16 * ratio);
        part.setDevicePixelRatio(1.0);
        return part;
    }
};

TEST_F(WindowPainterTest, ThePictureOfAPanelsTitleIsSharpOnAFineScreen) {
    const HWND panel = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    EXPECT_EQ(pictureOf(painted(panel, 1.0)), drawn("RCDATA_PANEL_LAYERS", 16));
    EXPECT_EQ(pictureOf(painted(panel, 2.0)), drawn("RCDATA_PANEL_LAYERS", 32));
}

}  // namespace workbench::desktop
