#include "workbench/xml/xml_node_operations.h"

#include <gtest/gtest.h>

namespace workbench {

struct WholeNumberCase {
    const char* text;
    std::optional<std::int32_t> number;
};

class WholeNumberTest : public testing::TestWithParam<WholeNumberCase> {};

TEST_P(WholeNumberTest, IsTakenOrRefused) {
    EXPECT_EQ(parseWholeNumber(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, WholeNumberTest,
    testing::Values(WholeNumberCase{"0", 0}, WholeNumberCase{"1", 1}, WholeNumberCase{"-3", -3},
                    WholeNumberCase{" 42\n", 42}, WholeNumberCase{"2147483647", 2147483647},
                    WholeNumberCase{"2147483648", std::nullopt},
                    WholeNumberCase{"1.0", std::nullopt}, WholeNumberCase{"1 2", std::nullopt},
                    WholeNumberCase{"+1", std::nullopt}, WholeNumberCase{"yes", std::nullopt},
                    WholeNumberCase{"", std::nullopt}, WholeNumberCase{"  ", std::nullopt}));

}  // namespace workbench
