#include "workbench/drawing/database/record_kind.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(RecordKind, IsNamedInWords) {
    EXPECT_STREQ(kindName(RecordKind::Layer), "layer");
    EXPECT_STREQ(kindName(RecordKind::LayerState), "layer state");
    EXPECT_STREQ(kindName(RecordKind::Current), "current state");
    EXPECT_STREQ(kindName(RecordKind::Table), "table");
}

}  // namespace
}  // namespace workbench::drawing
