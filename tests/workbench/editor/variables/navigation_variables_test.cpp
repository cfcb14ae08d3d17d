#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

TEST_F(EditorTest, PerspectiveIsTheActiveViewports) {
    Document& document = newDocument();
    EXPECT_TRUE(write(L"PERSPECTIVE", 1));
    const drawing::Database& data = document.data();
    EXPECT_TRUE(data.look<drawing::Viewport>(drawing::activeViewport(data))->view.perspective);
    EXPECT_EQ(events(), (Lines{"will change PERSPECTIVE", "view changed", "changed PERSPECTIVE"}));
}

TEST_F(EditorTest, WithoutAnActiveViewportPerspectiveIsNil) {
    newDocument();
    editor().set(L"CVPORT", 99);
    EXPECT_TRUE(read(L"PERSPECTIVE").isNil());
    EXPECT_FALSE(editor().set(L"PERSPECTIVE", 1));
}

TEST_F(EditorTest, StepsAreRealsInTheirRanges) {
    newDocument();
    EXPECT_TRUE(write(L"STEPSIZE", 0.5));
    EXPECT_FALSE(write(L"STEPSIZE", 0));
    EXPECT_TRUE(write(L"STEPSPERSEC", 30));
    EXPECT_FALSE(write(L"STEPSPERSEC", 31));
    EXPECT_TRUE(write(L"CAMERADISPLAY", 1));
}

}  // namespace workbench
