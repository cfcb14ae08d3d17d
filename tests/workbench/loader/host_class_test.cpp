#include "workbench/loader/host_class.h"

#include "tests/workbench/loader/loader_fixture.h"

namespace workbench {

using HostClassTest = LoaderTest;

TEST_F(HostClassTest, AClassIsOfItsOwnKindAndOfItsParents) {
    const HostClass* linker = findHostClass(L"VxRxDynamicLinker");
    const HostClass* root = findHostClass(L"VxRxObject");
    ASSERT_NE(linker, nullptr);
    ASSERT_NE(root, nullptr);
    EXPECT_TRUE(linker->isOrDerivesFrom(linker));
    EXPECT_TRUE(linker->isOrDerivesFrom(root));
    EXPECT_FALSE(root->isOrDerivesFrom(linker));
    EXPECT_FALSE(linker->isOrDerivesFrom(findHostClass(L"VxEditor")));
    EXPECT_FALSE(linker->isOrDerivesFrom(nullptr));
}

TEST_F(HostClassTest, ParentsReachOverSeveralSteps) {
    EXPECT_TRUE(findHostClass(L"VxEditorReactor")->isOrDerivesFrom(findHostClass(L"VxRxObject")));
}

TEST_F(HostClassTest, NamesAreExact) {
    EXPECT_EQ(findHostClass(L"vxeditor"), nullptr);
    EXPECT_EQ(findHostClass(L""), nullptr);
    EXPECT_EQ(hostClassName(findHostClass(L"VxEditor")), L"VxEditor");
    EXPECT_EQ(hostClassName(nullptr), L"");
}

TEST_F(HostClassTest, ADescriptorIsItselfOfTheClassOfClasses) {
    const HostClass* editor = findHostClass(L"VxEditor");
    EXPECT_TRUE(editor->isKindOf(findHostClass(L"VxRxClass")));
    EXPECT_TRUE(editor->isKindOf(findHostClass(L"VxRxObject")));
    EXPECT_FALSE(editor->isKindOf(editor));
}

}  // namespace workbench
