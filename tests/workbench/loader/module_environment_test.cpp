#include "workbench/loader/module_environment.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace workbench {

class ModuleEnvironmentTest : public testing::Test {
protected:
    static constexpr const char* kName = "WORKBENCH_TEST_VARIABLE";

    void SetUp() override { unsetenv(kName); }
    void TearDown() override { unsetenv(kName); }

    static std::string read() {
        const char* value = std::getenv(kName);
        return value == nullptr ? "(none)" : value;
    }
};

TEST_F(ModuleEnvironmentTest, AVariableThatWasNotThereGoesAgain) {
    {
        ModuleEnvironment environment;
        EXPECT_TRUE(environment.set(kName, "1"));
        EXPECT_TRUE(environment.set(kName, "2"));
        EXPECT_EQ(read(), "2");
    }
    EXPECT_EQ(read(), "(none)");
}

TEST_F(ModuleEnvironmentTest, AnEarlierValueComesBack) {
    setenv(kName, "before", 1);
    {
        ModuleEnvironment environment;
        environment.set(kName, "during");
        environment.set(kName, std::nullopt);
        EXPECT_EQ(read(), "(none)");
    }
    EXPECT_EQ(read(), "before");
}

TEST_F(ModuleEnvironmentTest, AnImpossibleNameIsRefused) {
    ModuleEnvironment environment;
    EXPECT_FALSE(environment.set("", "1"));
    EXPECT_FALSE(environment.set("A=B", "1"));
}

}  // namespace workbench
