#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

TEST_F(EditorTest, PerspectiveIsTheActiveViewports) {
    Document& document = newDocument();
    EXPECT_TRUE(write(L"PERSPECTIVE", 1));
    const drawing::Database& data = document.data();
    EXPECT_TRUE(data.look<drawing::Viewport>(drawing::activeViewport(data))->view.perspective);
    EXPECT_EQ(events(), (Lines{"will change PERSPECTIVE", "view changed", "changed PERSPECTIVE"}));
}

TEST_F(EditorTest, AnotherProjectionIsNoLongerTheNamedView) {
    drawing::Database& data = newDocument().data();
    const drawing::ObjectId port = drawing::activeViewport(data);
    drawing::View named;
    named.name = "Garden";
    drawing::Writing<drawing::Viewport>(data, port)->appliedView.id = data.add(named).id;
    write(L"PERSPECTIVE", 0);
    EXPECT_FALSE(data.look<drawing::Viewport>(port)->appliedView.id.isNull());
    write(L"PERSPECTIVE", 1);
    EXPECT_TRUE(data.look<drawing::Viewport>(port)->appliedView.id.isNull());
}

TEST_F(EditorTest, WithoutAnActiveViewportPerspectiveIsNil) {
    newDocument();
    drawing::setByPath(editor().documents().current()->data(), "current.modelViewport", 99);
    EXPECT_TRUE(read(L"PERSPECTIVE").isNil());
    EXPECT_FALSE(editor().set(L"PERSPECTIVE", 1));
}

TEST_F(EditorTest, StepsAreRealsInTheirRanges) {
    newDocument();
    EXPECT_TRUE(write(L"STEPSIZE", 0.5));
    EXPECT_FALSE(write(L"STEPSIZE", 0));
    EXPECT_TRUE(write(L"STEPSPERSEC", 30));
    EXPECT_TRUE(write(L"STEPSPERSEC", 300 / 290.0 * 29.0)) << "30 and what rounding adds to it";
    EXPECT_FALSE(write(L"STEPSPERSEC", 30.1));
    EXPECT_FALSE(write(L"STEPSPERSEC", 0.9));
    EXPECT_TRUE(write(L"CAMERADISPLAY", 1));
}

}  // namespace workbench
