#include "workbench/loader/service_entry.h"

#include "tests/workbench/loader/loader_fixture.h"

#include <memory>

namespace workbench {

using ServiceEntryTest = LoaderTest;

TEST_F(ServiceEntryTest, ARemovedServiceBelongsToTheCaller) {
    const int before = ServiceEntry::liveCount();
    vxrxRegisterService(L"TestService");
    EXPECT_EQ(ServiceEntry::liveCount(), before + 1);

    auto* services = dynamic_cast<VxRxDictionary*>(vxrxSysRegistry()->at(L"ServiceDictionary"));
    ASSERT_NE(services, nullptr);
    std::unique_ptr<VxRxObject> entry(services->remove(L"TestService"));
    EXPECT_NE(entry, nullptr);
    EXPECT_FALSE(vxrxServiceIsRegistered(L"TestService"));
    EXPECT_EQ(ServiceEntry::liveCount(), before + 1);
    entry.reset();
    EXPECT_EQ(ServiceEntry::liveCount(), before);
    EXPECT_EQ(services->remove(L"TestService"), nullptr);
}

}  // namespace workbench
