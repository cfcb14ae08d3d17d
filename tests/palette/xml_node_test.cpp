#include "palette/xml_node.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/profiles/profile_store.h"

#include <hostapi/vxut.h>
#include <hostapi/zorq/profiles.h>

namespace {

class XmlNodeTest : public PaletteTest {
protected:
    NodePtr makeNode() {
        return NodePtr(vxProfileManagerPtr()->profileStorage(L"Default", true)->createNode(L"N"));
    }
};

TEST_F(XmlNodeTest, QueriesANodeBehindItsBase) {
    const NodePtr node = makeNode();
    const NodePtr queried = queryNode(node.get());
    EXPECT_EQ(VxUt::GetNodeName(queried.get()), L"N");
}

TEST_F(XmlNodeTest, NullAndAStrangerAreNoNodes) {
    Stranger stranger;
    EXPECT_EQ(queryNode(nullptr), nullptr);
    EXPECT_EQ(queryNode(&stranger), nullptr);
}

TEST_F(XmlNodeTest, TheCodeOfAFailedOperationBecomesTheLastError) {
    constexpr HRESULT kFailure = -5;
    const BOOL answer = withNodeErrorsCaught([]() -> BOOL { throw VxComError{kFailure}; });
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(kFailure));
    EXPECT_EQ(withNodeErrorsCaught([] { return 7; }), 7);
}

}  // namespace
