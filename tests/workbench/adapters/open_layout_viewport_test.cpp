#include "workbench/adapters/open_layout_viewport.h"

#include "tests/workbench/adapters/adapters_fixture.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"

namespace workbench {

class OpenLayoutViewportTest : public AdaptersTest {};

TEST_F(OpenLayoutViewportTest, TellsWhatItShows) {
    drawing::Viewport port;
    port.number = 7;
    port.background = data().add(drawing::Background()).id;
    port.sun = data().add(drawing::Sun()).id;
    port.layout = firstLayout();
    auto* inLayout = openAs<VxDbViewport>(data().add(port).id);
    ASSERT_NE(inLayout, nullptr);
    EXPECT_EQ(inLayout->background(), toHostId(port.background));
    EXPECT_EQ(inLayout->sunId(), toHostId(port.sun));
    inLayout->close();
}

TEST_F(OpenLayoutViewportTest, TellsWhetherItIsLocked) {
    drawing::Viewport port;
    port.number = 7;
    port.locked = true;
    port.layout = firstLayout();
    auto* inLayout = openAs<VxDbViewport>(data().add(port).id);
    EXPECT_TRUE(inLayout->isLocked());
    m_bench.faults().fail("VxDbViewport::isLocked");
    EXPECT_FALSE(inLayout->isLocked());
    inLayout->close();
}

TEST_F(OpenLayoutViewportTest, FreezesAndThawsLayersInItAlone) {
    m_document.locks().lock(DocumentLocks::kWrite, this);
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    drawing::Viewport port;
    port.number = 7;
    port.layout = firstLayout();
    const drawing::ObjectId id = data().add(port).id;
    auto* viewport = openAs<VxDbViewport>(id);
    EXPECT_NE(viewport->freezeLayersInViewport({toHostId(layer)}), Zorq::eOk);
    EXPECT_EQ(viewport->upgradeOpen(), Zorq::eOk);
    EXPECT_EQ(viewport->freezeLayersInViewport({toHostId(layer), toHostId(layer)}), Zorq::eOk);
    viewport->close();
    const auto& frozen = data().look<drawing::Viewport>(id)->frozenLayers;
    EXPECT_EQ(frozen, decltype(port.frozenLayers){layer});
    editor().undo();
    EXPECT_TRUE(frozen.empty());
    editor().redo();
    viewport = openAs<VxDbViewport>(id);
    viewport->upgradeOpen();
    EXPECT_EQ(viewport->thawLayersInViewport({toHostId(layer)}), Zorq::eOk);
    viewport->close();
    EXPECT_TRUE(frozen.empty());
}

TEST_F(OpenLayoutViewportTest, StopsAtTheFirstIdThatIsNoLayer) {
    m_document.locks().lock(DocumentLocks::kWrite, this);
    const drawing::ObjectId layer = data().find(drawing::RecordKind::Layer, "0");
    drawing::Viewport port;
    port.number = 7;
    port.layout = firstLayout();
    auto* viewport = openAs<VxDbViewport>(data().add(port).id);
    viewport->upgradeOpen();
    EXPECT_EQ(viewport->freezeLayersInViewport({toHostId(layer), toHostId(port.layout)}),
              toHostStatus(drawing::Status::WrongKind));
    EXPECT_EQ(viewport->thawLayersInViewport({{}, toHostId(layer)}),
              toHostStatus(drawing::Status::NullObjectId));
    const drawing::ObjectId id = fromHostId(viewport->objectId());
    viewport->close();
    EXPECT_EQ(data().look<drawing::Viewport>(id)->frozenLayers.size(), 1U);
}

}  // namespace workbench
