#include "layer/restore_flags.h"

#include "tests/support/bench.h"
#include "workbench/profiles/profile.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/profiles/registry_element.h"

namespace {

/// One of the two options in the profile; nothing: it isn't there.
using Option = std::optional<int>;

struct FlagCase {
    Option layerNotFound;
    Option asOverrides;
    int flags;
};

class RestoreFlagsTest : public support::Bench, public testing::WithParamInterface<FlagCase> {
protected:
    void SetUp() override {
        useNoMenu();
        bench();
    }
    void setOption(const char* name, const Option& value) {
        if (value) {
            bench().profiles().current().setRegistryValue(
                *workbench::parseRegistryPath(
                    std::string("Dialogs/VxLayerApps:LayerStatesManager/") + name),
                workbench::Value(*value));
        }
    }
};

TEST_P(RestoreFlagsTest, AreTheOptionsOfTheDialog) {
    setOption("LayerNotFound", GetParam().layerNotFound);
    setOption("RestoreAsOverrides", GetParam().asOverrides);
    EXPECT_EQ(readRestoreFlags(), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(Options, RestoreFlagsTest,
                         testing::Values(FlagCase{{}, {}, 5}, FlagCase{1, 1, 5}, FlagCase{0, 1, 4},
                                         FlagCase{1, 0, 1}, FlagCase{0, 0, 0}, FlagCase{0, {}, 4},
                                         FlagCase{{}, 0, 1}, FlagCase{7, 9, 5}));

}  // namespace
