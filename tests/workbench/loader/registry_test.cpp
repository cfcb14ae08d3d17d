#include "workbench/loader/registry.h"

#include "tests/workbench/loader/loader_fixture.h"

#include <stdexcept>

namespace workbench {

namespace {

class TestEntry final : public RegisteredObject<VxRxObject> {
public:
    TestEntry() : RegisteredObject(L"VxRxService") {}
};

}  // namespace

class RegistryTest : public LoaderTest {
protected:
    VxRxDictionary* services() {
        return dynamic_cast<VxRxDictionary*>(vxrxSysRegistry()->at(L"ServiceDictionary"));
    }
    const VxRxClass* classNamed(const wchar_t* name) {
        auto* classes = dynamic_cast<VxRxDictionary*>(vxrxSysRegistry()->at(L"ClassDictionary"));
        return classes == nullptr ? nullptr : dynamic_cast<VxRxClass*>(classes->at(name));
    }
};

TEST_F(RegistryTest, TheHostsOwnEntriesPassTheirClassTest) {
    VxRxObject* linker = vxrxSysRegistry()->at(L"DynamicLinker");
    ASSERT_NE(linker, nullptr);
    EXPECT_TRUE(linker->isKindOf(classNamed(L"VxRxDynamicLinker")));
    EXPECT_TRUE(linker->isKindOf(classNamed(L"VxRxObject")));
    EXPECT_FALSE(linker->isKindOf(classNamed(L"VxEditor")));
    EXPECT_FALSE(linker->isKindOf(nullptr));
    EXPECT_TRUE(services()->isKindOf(classNamed(L"VxRxDictionary")));
}

TEST_F(RegistryTest, DescriptorsKeepTheirAddress) {
    const VxRxClass* first = classNamed(L"VxEditor");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(classNamed(L"VxEditor"), first);
    EXPECT_EQ(classNamed(L"VxNothing"), nullptr);
}

TEST_F(RegistryTest, AnEntryComesAndGoesByName) {
    TestEntry entry;
    registry().add(L"Mine", L"VxRxService", entry);
    EXPECT_EQ(vxrxSysRegistry()->at(L"Mine"), &entry);
    EXPECT_EQ(vxrxSysRegistry()->at(L"mine"), nullptr);
    registry().remove(L"Mine");
    EXPECT_EQ(vxrxSysRegistry()->at(L"Mine"), nullptr);
}

TEST_F(RegistryTest, AnEntryOfAnotherOrUnknownClassIsRefused) {
    TestEntry entry;
    EXPECT_THROW(registry().add(L"Mine", L"VxEditor", entry), std::logic_error);
    EXPECT_THROW(registry().add(L"Mine", L"VxNothing", entry), std::logic_error);
}

TEST_F(RegistryTest, RegisteringTwiceKeepsTheFirstEntry) {
    vxrxRegisterService(L"TestService");
    VxRxObject* first = services()->at(L"TestService");
    vxrxRegisterService(L"TestService");
    EXPECT_EQ(services()->at(L"TestService"), first);
}

TEST_F(RegistryTest, OnlyTheServicesOfAModuleAreDroppedWithIt) {
    const auto module = reinterpret_cast<HINSTANCE>(std::uintptr_t{77});
    registry().registerService(L"Of the module", module);
    registry().registerService(L"Of the host", nullptr);
    registry().dropServicesOf(module);
    EXPECT_FALSE(registry().isServiceRegistered(L"Of the module"));
    EXPECT_TRUE(registry().isServiceRegistered(L"Of the host"));
}

}  // namespace workbench
