#include "light/sky_state.h"

#include "render/scene_service.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/background.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/variables/sky_status.h"
#include "workbench/loader/module_loader.h"

#include <filesystem>

namespace {

namespace drawing = workbench::drawing;

class SkyStateTest : public PaletteTest {
protected:
    void TearDown() override {
        bench().modules().unloadAll();
        PaletteTest::TearDown();
    }
    drawing::Database& data() { return bench().editor().documents().current()->data(); }
    void setSky(int status) { ASSERT_TRUE(workbench::writeSkyStatus(data(), status)); }
    /// Gives the view a background of a type.
    void setBackground(int type) {
        drawing::Background background;
        background.name = "Test";
        background.type = type;
        const drawing::ObjectId id = data().add(background).id;
        drawing::Writing<drawing::Viewport> view(data(), drawing::activeViewport(data()));
        ASSERT_TRUE(view);
        view->background = id;
    }
    /// Whether all that was opened has been closed again.
    bool allClosed() {
        return bool(drawing::Writing<drawing::Viewport>(data(), drawing::activeViewport(data())));
    }
};

// Status

TEST_F(SkyStateTest, ViewWithoutABackgroundHasItsSkyOff) {
    EXPECT_EQ(readSkyStatus(), kSkyStatusOff);
    EXPECT_TRUE(allClosed());
}

struct BackgroundCase {
    int type;
    int status;
};
class BackgroundTypeTest : public SkyStateTest,
                           public testing::WithParamInterface<BackgroundCase> {};

TEST_P(BackgroundTypeTest, SkyIsOnAtElevenAlone) {
    setBackground(GetParam().type);
    EXPECT_EQ(readSkyStatus(), GetParam().status);
    EXPECT_TRUE(allClosed());
}

INSTANTIATE_TEST_SUITE_P(Types, BackgroundTypeTest,
                         testing::Values(BackgroundCase{5, 0}, BackgroundCase{7, 0},
                                         BackgroundCase{9, 0}, BackgroundCase{11, 11}));

TEST_F(SkyStateTest, ViewThatCannotBeOpenedHasNoStatus) {
    fail("vxdbOpenObject", 1);
    EXPECT_FALSE(readSkyStatus().has_value());
    EXPECT_EQ(readSkyStatus(), kSkyStatusOff);
}

TEST_F(SkyStateTest, WithoutAViewThereIsNoStatus) {
    fail("vxedActiveViewportId", 1);
    EXPECT_FALSE(readSkyStatus().has_value());
}

TEST_F(SkyStateTest, BackgroundThatIsOpenForWriteHasNoStatusAndTheViewIsClosedAgain) {
    setSky(1);
    {
        const drawing::Writing<drawing::Background> elsewhere(data(),
                                                              drawing::activeBackground(data()));
        EXPECT_FALSE(readSkyStatus().has_value());
    }
    EXPECT_TRUE(allClosed());
}

// Illumination

TEST_F(SkyStateTest, SunOfTheViewSaysWhetherTheSkyGivesLight) {
    setSky(1);
    EXPECT_FALSE(readSkyIllumination());
    setSky(2);
    EXPECT_TRUE(readSkyIllumination());
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 0) << "the view has its sun";
    EXPECT_TRUE(allClosed());
}

TEST_F(SkyStateTest, DrawingsSunStandsInForAMissingOneOfTheView) {
    setSky(2);
    {
        drawing::Writing<drawing::Viewport> view(data(), drawing::activeViewport(data()));
        view->sun = {};
    }
    EXPECT_TRUE(readSkyIllumination());
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 1);
}

TEST_F(SkyStateTest, WithoutSunOrServiceTheSkyGivesNoLight) {
    setSky(2);
    {
        drawing::Writing<drawing::Viewport> view(data(), drawing::activeViewport(data()));
        view->sun = {};
    }
    bench().faults().hide("VxSceneUI.qlx");
    EXPECT_FALSE(readSkyIllumination());
}

TEST_F(SkyStateTest, ViewThatCannotBeOpenedLeavesTheDrawingsSun) {
    setSky(2);
    fail("vxdbOpenObject", 1);
    EXPECT_TRUE(readSkyIllumination());
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 1);
    EXPECT_TRUE(allClosed());
}

TEST_F(SkyStateTest, AskingForASunMakesNone) {
    VxDbObjectId sun;
    while (getActiveSun(sun, false) == Zorq::eOk) {
        drawing::DbObject* object = nullptr;
        ASSERT_EQ(data().open(workbench::fromHostId(sun), drawing::OpenMode::Write,
                              drawing::ErasedObjects::Refuse, object),
                  drawing::Status::Ok);
        object->erase();
        object->close();
    }
    drawing::Writing<drawing::Viewport>(data(), drawing::activeViewport(data()))->sun = {};
    forget();
    EXPECT_FALSE(readSkyIllumination());
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 1) << "the view has no sun";
    EXPECT_NE(getActiveSun(sun, false), Zorq::eOk);
}

// Views of the sheet

class SheetSkyTest : public SkyStateTest {
protected:
    void SetUp() override {
        bench().editor().documents().open(std::filesystem::path(PROJECT_SOURCE_ROOT) /
                                          "examples/house.json");
        set(L"TILEMODE", 0);
        set(L"CVPORT", 2);
    }
    void set(const wchar_t* variable, const workbench::Value& value) {
        ASSERT_TRUE(bench().editor().set(variable, value));
    }
};

TEST_F(SheetSkyTest, ViewportHasABackgroundAndASunOfItsOwn) {
    setSky(0);
    EXPECT_EQ(readSkyStatus(), kSkyStatusOff);
    setSky(1);
    EXPECT_EQ(readSkyStatus(), kSkyStatusOn);
    EXPECT_FALSE(readSkyIllumination());
    setSky(2);
    EXPECT_EQ(readSkyStatus(), kSkyStatusOn);
    EXPECT_TRUE(readSkyIllumination());
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 0) << "the viewport has its sun";
    EXPECT_TRUE(allClosed());
}

}  // namespace
