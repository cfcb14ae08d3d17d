#include "tests/workbench/adapters/adapters_fixture.h"

#include <hostapi/zorq/layers.h>

namespace workbench {

class LayerDisplayFunctionsTest : public AdaptersTest {
protected:
    /// The records of regenerations since the last call: event, then the layers.
    Lines regenerations() {
        Lines lines;
        for (const JournalRecord& record : m_bench.journal().take("regen")) {
            std::string line = record.field("event").asString();
            for (const Value& layer : record.field("layers").asList())
                line += " " + layer.asString();
            lines.push_back(line);
        }
        return lines;
    }
    VxDbObjectIdArray layerZero() {
        return {toHostId(data().find(drawing::RecordKind::Layer, "0"))};
    }
};

TEST_F(LayerDisplayFunctionsTest, TheFlagsOfTheListsAreKept) {
    EXPECT_FALSE(vxedGetInvertLayerFilterFlag());
    vxedSetInvertLayerFilterFlag(true);
    EXPECT_TRUE(vxedGetInvertLayerFilterFlag());
    m_bench.faults().fail("vxedSetInvertLayerFilterFlag");
    vxedSetInvertLayerFilterFlag(false);
    EXPECT_TRUE(vxedGetInvertLayerFilterFlag());
    EXPECT_FALSE(editor().layerDisplay().byFilter);
    vxedSetUseCurrentFilterFlag(1);
    EXPECT_TRUE(editor().layerDisplay().byFilter);
    vxedSetUseCurrentFilterFlag(0);
    EXPECT_FALSE(editor().layerDisplay().byFilter);
}

TEST_F(LayerDisplayFunctionsTest, ChangedLayersAreDrawnAnewAtOnce) {
    VxDbObjectIdArray layers = layerZero();
    layers.push_back(toHostId(firstLayout()));
    vxedRegenLayers(layers, 0);
    EXPECT_EQ(regenerations(), Lines{"done 0"});
    EXPECT_EQ(vxedRegenPending(), 0);
    vxedRegenLayers(layers, 1);
    EXPECT_EQ(regenerations(), Lines{"done"});
}

TEST_F(LayerDisplayFunctionsTest, WithoutRegenerationByItselfItStandsDue) {
    write(L"REGENMODE", 0);
    vxedRegenLayers(layerZero(), vxedRegenPending());
    EXPECT_EQ(regenerations(), Lines{"due 0"});
    EXPECT_EQ(vxedRegenPending(), 1);
    write(L"REGENMODE", 1);
    vxedRegenLayers(layerZero(), vxedRegenPending());
    EXPECT_EQ(regenerations(), Lines{"done"});
    EXPECT_EQ(vxedRegenPending(), 0);
}

TEST_F(LayerDisplayFunctionsTest, AFaultDrawsNothing) {
    m_bench.faults().fail("vxedRegenLayers");
    vxedRegenLayers(layerZero(), 0);
    EXPECT_EQ(regenerations(), Lines{});
}

}  // namespace workbench
