#include "render/scene_service.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/vxdb18.h>

namespace {

constexpr Zorq::ErrorStatus kNoService = 3;
constexpr Zorq::ErrorStatus kNoActiveSun = 600;

using Lines = std::vector<std::string>;

class SceneServiceTest : public PaletteTest {
protected:
    void TearDown() override {
        bench().modules().unloadAll();
        PaletteTest::TearDown();
    }
    /// The host calls on the road to the service since the journal was forgotten.
    Lines takeSteps() {
        return takeLines(
            {"vxrxServiceIsRegistered", "vxrxLoadModule", "VxRxDynamicLinker::getSymbolAddress"});
    }
    workbench::drawing::Database& data() { return bench().editor().documents().current()->data(); }

    VxDbObjectId m_sun;
};

TEST_F(SceneServiceTest, ServiceIsLoadedAtItsFirstUse) {
    EXPECT_FALSE(vxrxServiceIsRegistered(L"SceneUI_Service"));
    EXPECT_EQ(getActiveSun(m_sun, true), Zorq::eOk);
    EXPECT_TRUE(vxrxServiceIsRegistered(L"SceneUI_Service"));
    EXPECT_EQ(m_sun, workbench::toHostId(workbench::drawing::activeSun(data())));
}

TEST_F(SceneServiceTest, ServiceIsLoadedWithoutAWordAndAsACommandAndAskedForAgain) {
    forget();
    getActiveSun(m_sun, true);
    EXPECT_EQ(takeSteps(), (Lines{"vxrxServiceIsRegistered(\"SceneUI_Service\")",
                                  "vxrxLoadModule(\"VxSceneUI.qlx\", false, true)",
                                  "vxrxServiceIsRegistered(\"SceneUI_Service\")",
                                  "VxRxDynamicLinker::getSymbolAddress(\"SceneUI_Service\", "
                                  "\"getActiveSun\")"}));
}

TEST_F(SceneServiceTest, ServiceThatIsThereIsNotLoaded) {
    ASSERT_TRUE(vxrxLoadModule(L"VxSceneUI.qlx", false, true));
    forget();
    EXPECT_EQ(getActiveSun(m_sun, true), Zorq::eOk);
    EXPECT_EQ(takeSteps(), (Lines{"vxrxServiceIsRegistered(\"SceneUI_Service\")",
                                  "vxrxServiceIsRegistered(\"SceneUI_Service\")",
                                  "VxRxDynamicLinker::getSymbolAddress(\"SceneUI_Service\", "
                                  "\"getActiveSun\")"}));
}

TEST_F(SceneServiceTest, EntryPointIsLookedUpAtEachUseAndTheModuleLoadedOnce) {
    getActiveSun(m_sun, true);
    getActiveSun(m_sun, true);
    EXPECT_EQ(callCount("VxRxDynamicLinker::getSymbolAddress"), 2);
    EXPECT_EQ(callCount("vxrxLoadModule"), 1);
}

TEST_F(SceneServiceTest, MissingSunIsTheServicesStatus) {
    while (getActiveSun(m_sun, false) == Zorq::eOk) {
        workbench::drawing::DbObject* object = nullptr;
        ASSERT_EQ(data().open(workbench::fromHostId(m_sun), workbench::drawing::OpenMode::Write,
                              workbench::drawing::ErasedObjects::Refuse, object),
                  workbench::drawing::Status::Ok);
        object->erase();
        object->close();
    }
    EXPECT_EQ(getActiveSun(m_sun, false), kNoActiveSun);
}

// Failures

TEST_F(SceneServiceTest, MissingModuleIsTheFailureValueWithoutABox) {
    bench().faults().hide("VxSceneUI.qlx");
    forget();
    EXPECT_EQ(getActiveSun(m_sun, true), kNoService);
    EXPECT_TRUE(m_sun.isNull());
    EXPECT_EQ(takeLines(), (Lines{"vxrxServiceIsRegistered(\"SceneUI_Service\")",
                                  "vxrxLoadModule(\"VxSceneUI.qlx\", false, true)",
                                  "vxrxServiceIsRegistered(\"SceneUI_Service\")"}));
}

TEST_F(SceneServiceTest, MissingEntryPointIsTheFailureValue) {
    bench().faults().hide("VxSceneUI.qlx", "getActiveSun");
    EXPECT_EQ(getActiveSun(m_sun, true), kNoService);
    bench().faults().unhide("VxSceneUI.qlx", "getActiveSun");
    EXPECT_EQ(getActiveSun(m_sun, true), Zorq::eOk) << "nothing is remembered of the miss";
}

TEST_F(SceneServiceTest, MissingLinkerIsTheFailureValue) {
    ASSERT_TRUE(vxrxLoadModule(L"VxSceneUI.qlx", false, true));
    bench().modules().registry().remove(L"DynamicLinker");
    EXPECT_EQ(getActiveSun(m_sun, true), kNoService);
}

}  // namespace
