#include "tests/workbench/host/test_options.h"
#include "workbench/adapters/host_values.h"
#include "workbench/drawing/lookup.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/vxdb18.h>

#include <gtest/gtest.h>

namespace workbench {

class SceneModuleTest : public testing::Test {
protected:
    using GetActiveSun = Zorq::ErrorStatus (*)(VxDbObjectId* id, bool create);

    static constexpr const wchar_t* kModule = L"VxSceneUI.qlx";
    static constexpr const wchar_t* kService = L"SceneUI_Service";

    void SetUp() override {
        ASSERT_TRUE(bench.modules().loadModule(kModule)) << bench.modules().failureText();
        const auto* linker =
            dynamic_cast<VxRxDynamicLinker*>(vxrxSysRegistry()->at(L"DynamicLinker"));
        getActiveSun =
            reinterpret_cast<GetActiveSun>(linker->getSymbolAddress(kService, "getActiveSun"));
        ASSERT_NE(getActiveSun, nullptr);
    }

    drawing::Database& newDrawing() {
        return bench.editor().documents().create(L"Drawing1").data();
    }
    /// Takes every sun out of a drawing.
    void eraseSuns(drawing::Database& database) {
        while (true) {
            VxDbObjectId sun;
            if (getActiveSun(&sun, false) != 0)
                return;
            drawing::DbObject* object = nullptr;
            ASSERT_EQ(database.open(fromHostId(sun), drawing::OpenMode::Write,
                                    drawing::ErasedObjects::Refuse, object),
                      drawing::Status::Ok);
            object->erase();
            object->close();
        }
    }

    Workbench bench{testOptions()};
    GetActiveSun getActiveSun = nullptr;
};

TEST_F(SceneModuleTest, WithoutADrawingThereIsNoSunToBeHad) {
    VxDbObjectId id;
    EXPECT_EQ(getActiveSun(&id, false), 3);
    EXPECT_EQ(getActiveSun(&id, true), 3);
    EXPECT_TRUE(id.isNull());
}

TEST_F(SceneModuleTest, TheActiveViewsSunIsFound) {
    const drawing::Database& database = newDrawing();
    VxDbObjectId id;
    EXPECT_EQ(getActiveSun(&id, false), 0);
    EXPECT_EQ(id, toHostId(drawing::activeSun(database)));
    EXPECT_EQ(getActiveSun(nullptr, false), 3);
}

TEST_F(SceneModuleTest, AMissingSunIs600UnlessItIsToBeMade) {
    eraseSuns(newDrawing());
    VxDbObjectId id;
    EXPECT_EQ(getActiveSun(&id, false), 600);
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(getActiveSun(&id, true), 0);
    EXPECT_TRUE(id.isValid());
    VxDbObjectId again;
    EXPECT_EQ(getActiveSun(&again, false), 0);
    EXPECT_EQ(again, id);
}

TEST_F(SceneModuleTest, TheServiceGoesWithTheModule) {
    EXPECT_TRUE(vxrxServiceIsRegistered(kService));
    EXPECT_TRUE(bench.modules().unloadModule(kModule));
    EXPECT_FALSE(vxrxServiceIsRegistered(kService));
    EXPECT_TRUE(bench.modules().libraries().stillMapped().empty());
}

}  // namespace workbench
