#include "tests/workbench/editor/editor_fixture.h"

#include <ostream>

namespace workbench {

struct UnitCase {
    const wchar_t* name;
    int least;
    int most;
    int initial;

    friend void PrintTo(const UnitCase& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.name) << '"';
    }
};

class UnitVariablesTest : public EditorTest, public testing::WithParamInterface<UnitCase> {};

TEST_P(UnitVariablesTest, KeepsToItsRange) {
    newDocument();
    const UnitCase& unit = GetParam();
    EXPECT_EQ(read(unit.name), Value(unit.initial));
    EXPECT_TRUE(write(unit.name, unit.least));
    EXPECT_TRUE(write(unit.name, unit.most));
    EXPECT_FALSE(write(unit.name, unit.least - 1));
    EXPECT_FALSE(write(unit.name, unit.most + 1));
    EXPECT_EQ(read(unit.name), Value(unit.most));
}

INSTANTIATE_TEST_SUITE_P(Units, UnitVariablesTest,
                         testing::Values(UnitCase{L"LUNITS", 1, 5, 2}, UnitCase{L"LUPREC", 0, 8, 4},
                                         UnitCase{L"AUNITS", 0, 4, 0},
                                         UnitCase{L"AUPREC", 0, 8, 0}));

TEST_F(EditorTest, TheScaleOfLinetypesIsAPositiveReal) {
    newDocument();
    EXPECT_TRUE(write(L"LTSCALE", 0.5));
    EXPECT_FALSE(write(L"LTSCALE", 0));
    EXPECT_EQ(read(L"LTSCALE"), Value(0.5));
}

}  // namespace workbench
