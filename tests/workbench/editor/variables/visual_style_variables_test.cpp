#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/visual_style.h"

#include <ostream>

namespace workbench {

struct StyleCase {
    const wchar_t* name;
    int value;
    int beyond;

    friend void PrintTo(const StyleCase& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.name) << '"';
    }
};

class VisualStyleVariablesTest : public EditorTest,
                                 public testing::WithParamInterface<StyleCase> {};

TEST_P(VisualStyleVariablesTest, IsThatOfTheStyleThatTheActiveViewportShows) {
    newDocument();
    EXPECT_TRUE(write(GetParam().name, GetParam().value));
    EXPECT_EQ(read(GetParam().name), Value(GetParam().value));
    EXPECT_FALSE(write(GetParam().name, GetParam().beyond));
    EXPECT_TRUE(write(L"VSCURRENT", "Conceptual"));
    EXPECT_TRUE(write(L"VSCURRENT", "2D Wireframe"));
    EXPECT_EQ(read(GetParam().name), Value(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(
    Styles, VisualStyleVariablesTest,
    testing::Values(StyleCase{L"VSMATERIALMODE", 2, 3}, StyleCase{L"VSLIGHTINGQUALITY", 2, 3},
                    StyleCase{L"VSFACESTYLE", 2, 3}, StyleCase{L"VSFACECOLORMODE", 3, 4},
                    StyleCase{L"VSFACEOPACITY", -40, 101}, StyleCase{L"VSSHADOWS", 2, 3},
                    StyleCase{L"VSEDGES", 2, 3}, StyleCase{L"VSEDGEOVERHANG", -9, 101},
                    StyleCase{L"VSEDGEJITTER", 3, 4}, StyleCase{L"VSEDGEWIDTH", 7, 0},
                    StyleCase{L"VSSILHEDGES", 1, 2}, StyleCase{L"VSSILHWIDTH", -7, 26},
                    StyleCase{L"VSOBSCUREDEDGES", 1, 2}, StyleCase{L"VSINTERSECTIONEDGES", 1, 2}));

TEST_F(EditorTest, ChangingTheStyleTellsOfTheSettingsThatDiffer) {
    newDocument();
    write(L"VSCURRENT", "Wireframe");
    events();
    EXPECT_TRUE(write(L"VSCURRENT", "Realistic"));
    EXPECT_EQ(events(),
              (Lines{"will change VSCURRENT", "changed VSCURRENT", "changed VSMATERIALMODE",
                     "changed VSLIGHTINGQUALITY", "changed VSFACESTYLE", "changed VSEDGES"}));
    EXPECT_FALSE(write(L"VSCURRENT", "Nonsense"));
}

}  // namespace workbench
