#include "workbench/loader/host_dictionary.h"

#include "tests/workbench/loader/loader_fixture.h"
#include "workbench/loader/service_entry.h"

#include <memory>

namespace workbench {

class HostDictionaryTest : public LoaderTest {
protected:
    ServiceEntry lent{nullptr};
    HostDictionary dictionary;
};

TEST_F(HostDictionaryTest, NamesAreExact) {
    dictionary.lend(L"Lent", lent);
    EXPECT_EQ(dictionary.at(L"Lent"), &lent);
    EXPECT_EQ(dictionary.at(L"lent"), nullptr);
    EXPECT_EQ(dictionary.at(nullptr), nullptr);
    dictionary.erase(L"Lent");
    dictionary.erase(L"Lent");
    EXPECT_EQ(dictionary.at(L"Lent"), nullptr);
}

TEST_F(HostDictionaryTest, WhatIsLentIsNotGivenAway) {
    dictionary.lend(L"Lent", lent);
    EXPECT_EQ(dictionary.remove(L"Lent"), nullptr);
    EXPECT_EQ(dictionary.at(L"Lent"), &lent);
}

TEST_F(HostDictionaryTest, WhatIsOwnedGoesWithItsEntryOrToItsTaker) {
    const int before = ServiceEntry::liveCount();
    dictionary.give(L"A", std::make_unique<ServiceEntry>(nullptr));
    dictionary.give(L"B", std::make_unique<ServiceEntry>(nullptr));
    const std::unique_ptr<VxRxObject> taken(dictionary.remove(L"A"));
    EXPECT_NE(taken, nullptr);
    EXPECT_EQ(dictionary.at(L"A"), nullptr);
    dictionary.erase(L"B");
    EXPECT_EQ(ServiceEntry::liveCount(), before + 1);
}

TEST_F(HostDictionaryTest, OnlyOwnedEntriesAreErasedByCondition) {
    dictionary.lend(L"Lent", lent);
    dictionary.give(L"Owned", std::make_unique<ServiceEntry>(nullptr));
    dictionary.eraseOwnedIf([](const VxRxObject&) { return true; });
    EXPECT_NE(dictionary.at(L"Lent"), nullptr);
    EXPECT_EQ(dictionary.at(L"Owned"), nullptr);
}

TEST_F(HostDictionaryTest, TheCallsCanBeToldToFail) {
    dictionary.give(L"Owned", std::make_unique<ServiceEntry>(nullptr));
    faults().fail("VxRxDictionary::at", {}, 1);
    EXPECT_EQ(dictionary.at(L"Owned"), nullptr);
    faults().fail("VxRxDictionary::remove", {}, 1);
    EXPECT_EQ(dictionary.remove(L"Owned"), nullptr);
    EXPECT_NE(dictionary.at(L"Owned"), nullptr);
    faults().fail("VxRxObject::isKindOf", {}, 1);
    EXPECT_FALSE(dictionary.isKindOf(findHostClass(L"VxRxDictionary")));
}

}  // namespace workbench
