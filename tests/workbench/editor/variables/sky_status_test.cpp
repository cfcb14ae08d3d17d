#include "workbench/editor/variables/sky_status.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

namespace workbench {

class SkyStatusTest : public testing::Test {
protected:
    drawing::Database& data() { return m_drawing->db; }
    int backgroundType() {
        const auto* background =
            data().look<drawing::Background>(drawing::activeBackground(data()));
        return background == nullptr ? 0 : background->type;
    }
    bool illuminates() {
        const auto* sun = data().look<drawing::Sun>(activeOrOnlySun(data()));
        return sun != nullptr && sun->sky.illumination;
    }

private:
    std::unique_ptr<drawing::Drawing> m_drawing = drawing::makeNewDrawing();
};

TEST_F(SkyStatusTest, ANewDrawingHasNoSky) {
    EXPECT_EQ(readSkyStatus(data()), 0);
}

TEST_F(SkyStatusTest, OneIsASkyThatGivesNoLight) {
    EXPECT_TRUE(writeSkyStatus(data(), 1));
    EXPECT_EQ(readSkyStatus(data()), 1);
    EXPECT_EQ(backgroundType(), 11);
    EXPECT_FALSE(illuminates());
}

TEST_F(SkyStatusTest, TwoIsASkyThatGivesLight) {
    EXPECT_TRUE(writeSkyStatus(data(), 2));
    EXPECT_EQ(readSkyStatus(data()), 2);
    EXPECT_EQ(backgroundType(), 11);
    EXPECT_TRUE(illuminates());
}

TEST_F(SkyStatusTest, ZeroTakesTheSkyAwayAndKeepsTheLightForTheNextOne) {
    writeSkyStatus(data(), 2);
    EXPECT_TRUE(writeSkyStatus(data(), 0));
    EXPECT_EQ(readSkyStatus(data()), 0);
    EXPECT_EQ(backgroundType(), 0);
    EXPECT_TRUE(illuminates());
}

TEST_F(SkyStatusTest, TheDrawingsSkyIsUsedAgain) {
    writeSkyStatus(data(), 1);
    writeSkyStatus(data(), 0);
    writeSkyStatus(data(), 1);
    EXPECT_EQ(data().ids(drawing::RecordKind::Background).size(), 1U);
}

TEST_F(SkyStatusTest, AChangeIsOneStepOfUndo) {
    writeSkyStatus(data(), 2);
    EXPECT_EQ(data().undoLog().undo(), drawing::Status::Ok);
    EXPECT_EQ(readSkyStatus(data()), 0);
    EXPECT_EQ(data().undoLog().undo(), drawing::Status::NothingToUndo);
}

TEST_F(SkyStatusTest, AViewportThatIsOpenElsewhereIsLeftAlone) {
    const drawing::ObjectId viewport = drawing::activeViewport(data());
    const drawing::Reading<drawing::Viewport> reading(data(), viewport);
    EXPECT_FALSE(writeSkyStatus(data(), 1));
    EXPECT_EQ(readSkyStatus(data()), 0);
}

TEST_F(SkyStatusTest, AViewportGetsTheSunThatThereIs) {
    ensureSun(data());
    const drawing::ObjectId sun = drawing::activeSun(data());
    EXPECT_FALSE(sun.isNull());
    ensureSun(data());
    EXPECT_EQ(drawing::activeSun(data()), sun);
    EXPECT_EQ(data().ids(drawing::RecordKind::Sun).size(), 1U);
}

}  // namespace workbench
