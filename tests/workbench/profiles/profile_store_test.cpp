#include "workbench/profiles/profile_store.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/base/input_error.h"
#include "workbench/host/workbench.h"
#include "workbench/xml/xml_node.h"

#include <hostapi/vxut.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

namespace {

class TestReactor : public VxApProfileManagerReactor {
public:
    void currentProfileChanged(const wchar_t* name) override {
        events.push_back(L"changed " + std::wstring(name));
        if (onEvent)
            onEvent();
    }
    void currentProfileWillBeSaved(const wchar_t* name) override {
        events.push_back(L"will be saved " + std::wstring(name));
        if (onEvent)
            onEvent();
    }

    std::vector<std::wstring> events;
    std::function<void()> onEvent;
};

struct Releaser {
    void operator()(IXMLDOMNode* node) const { node->Release(); }
};
using NodePtr = std::unique_ptr<IXMLDOMNode, Releaser>;

}  // namespace

class ProfileStoreTest : public testing::Test {
protected:
    using Strings = std::vector<std::wstring>;

    ProfileStoreTest() { store = makeStore(); }

    std::unique_ptr<ProfileStore> makeStore() {
        return std::make_unique<ProfileStore>(folder.path, bench.journal());
    }
    /// Ends the store and starts another one on the same folder.
    void restart() {
        store.reset();
        store = makeStore();
    }
    VxApProfileStorage* storage(const wchar_t* profile = L"Default") {
        return store->profileStorage(profile, true);
    }
    void keep(const wchar_t* path, const wchar_t* text) {
        const NodePtr node(storage()->createNode(path));
        VxUt::SetAttributeValue(node.get(), L"Text", VxString(text));
    }
    VxString kept(const wchar_t* path) {
        const NodePtr node(storage()->openNode(path));
        VxString text;
        if (node != nullptr)
            VxUt::GetAttributeValue(node.get(), L"Text", text);
        return text;
    }

    Workbench bench{testOptions()};
    support::TemporaryFolder folder;
    TestReactor reactor;
    std::unique_ptr<ProfileStore> store;
};

TEST_F(ProfileStoreTest, StartsWithTheFirstProfileAndNoFile) {
    EXPECT_EQ(store->currentName(), "Default");
    EXPECT_EQ(folder.fileCount(), 0U);
}

TEST_F(ProfileStoreTest, NodesAreKeptByPathOverARestart) {
    keep(L"Dashboard", L"one");
    keep(L"Other/Inner", L"two");
    store->save();
    restart();
    EXPECT_EQ(kept(L"Dashboard"), L"one");
    EXPECT_EQ(kept(L"Other/Inner"), L"two");
    EXPECT_EQ(storage()->openNode(L"Inner"), nullptr);
    EXPECT_EQ(XmlNode::liveCount(), 0);
}

TEST_F(ProfileStoreTest, WhatWasNotSavedIsForgotten) {
    keep(L"Dashboard", L"one");
    restart();
    EXPECT_EQ(storage()->openNode(L"Dashboard"), nullptr);
}

TEST_F(ProfileStoreTest, AModuleCannotReachTheVariables) {
    store->setValue("STEPSIZE", 2.5);
    EXPECT_EQ(storage()->openNode(L"Variables"), nullptr);
    store->save();
    restart();
    EXPECT_EQ(store->value("STEPSIZE"), Value(2.5));
    EXPECT_TRUE(store->value("STEPSPERSEC").isNil());
}

TEST_F(ProfileStoreTest, SwitchingTellsTheReactorsOnce) {
    store->addReactor(&reactor);
    store->switchTo("Night");
    EXPECT_EQ(store->currentName(), "Night");
    EXPECT_EQ(reactor.events, Strings{L"changed Night"});
    store->switchTo("Night");
    EXPECT_EQ(reactor.events.size(), 1U);
    store->removeReactor(&reactor);
    store->switchTo("Default");
    EXPECT_EQ(reactor.events.size(), 1U);
}

TEST_F(ProfileStoreTest, EachProfileHasItsOwnContent) {
    keep(L"Dashboard", L"day");
    store->setValue("STEPSIZE", 1.0);
    store->switchTo("Night");
    EXPECT_TRUE(store->value("STEPSIZE").isNil());
    store->setValue("STEPSIZE", 2.0);
    store->switchTo("Default");
    EXPECT_EQ(store->value("STEPSIZE"), Value(1.0));
    EXPECT_EQ(kept(L"Dashboard"), L"day");
}

TEST_F(ProfileStoreTest, ReactorsWriteBeforeTheFileIsWritten) {
    store->addReactor(&reactor);
    reactor.onEvent = [this] { keep(L"Dashboard", L"written late"); };
    store->save();
    EXPECT_EQ(reactor.events, Strings{L"will be saved Default"});
    restart();
    EXPECT_EQ(kept(L"Dashboard"), L"written late");
}

TEST_F(ProfileStoreTest, AReactorThatRemovesItselfIsCalledOnce) {
    store->addReactor(&reactor);
    reactor.onEvent = [this] { store->removeReactor(&reactor); };
    store->save();
    store->save();
    EXPECT_EQ(reactor.events.size(), 1U);
}

TEST_F(ProfileStoreTest, AReactorThatSwitchesLeavesTheSaveWithItsProfile) {
    store->addReactor(&reactor);
    reactor.onEvent = [this] { store->switchTo("Night"); };
    store->save();
    EXPECT_TRUE(folder.has("Default.xml"));
    EXPECT_FALSE(folder.has("Night.xml"));
}

TEST_F(ProfileStoreTest, ADamagedProfileStartsFreshAndTheOldFileIsKept) {
    folder.write("Default.xml", "<Profile><Storage>");
    restart();
    ASSERT_EQ(store->complaints().size(), 1U);
    EXPECT_EQ(storage()->openNode(L"Dashboard"), nullptr);
    store->save();
    EXPECT_EQ(folder.read("Default.xml.damaged"), "<Profile><Storage>");
    EXPECT_NE(folder.read("Default.xml").find("</Profile>"), std::string::npos);
    const std::vector<JournalRecord> records = bench.journal().take("profile");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().field("text"), Value(store->complaints().front()));
}

TEST_F(ProfileStoreTest, ANameThatLeavesTheFolderIsRefusedAndNothingChanges) {
    store->addReactor(&reactor);
    EXPECT_THROW(store->switchTo("../Other"), InputError);
    EXPECT_THROW(store->switchTo(""), InputError);
    EXPECT_EQ(store->currentName(), "Default");
    EXPECT_TRUE(reactor.events.empty());
    EXPECT_EQ(store->profileStorage(L"../Other", true), nullptr);
}

TEST_F(ProfileStoreTest, AStorageIsMadeOnlyIfAskedFor) {
    EXPECT_EQ(store->profileStorage(L"Night", false), nullptr);
    EXPECT_NE(store->profileStorage(L"Night", true), nullptr);
    EXPECT_NE(store->profileStorage(L"Night", false), nullptr);
    EXPECT_NE(store->profileStorage(L"Default", false), nullptr);
}

TEST_F(ProfileStoreTest, AProfileOnTheDiskIsThereWithoutBeingMade) {
    folder.write("Night.xml", "<Profile><Storage><Dashboard Text=\"dark\"/></Storage></Profile>");
    VxApProfileStorage* night = store->profileStorage(L"Night", false);
    ASSERT_NE(night, nullptr);
    const NodePtr node(night->openNode(L"Dashboard"));
    EXPECT_NE(node, nullptr);
}

TEST_F(ProfileStoreTest, AFailedSaveIsToldAndKeepsWhatIsOnTheDisk) {
    store->save();
    std::filesystem::remove(folder.path / "Default.xml");
    std::filesystem::create_directories(folder.path / "Default.xml" / "inside");
    EXPECT_THROW(store->save(), InputError);
    EXPECT_EQ(folder.fileCount(), 1U);
}

TEST_F(ProfileStoreTest, ATemporaryFolderGoesWithTheStore) {
    std::filesystem::path path;
    {
        ProfileStore temporary({}, bench.journal());
        path = temporary.folder();
        temporary.save();
        EXPECT_TRUE(std::filesystem::exists(path / "Default.xml"));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ProfileStoreTest, AFolderThatCannotBeMadeIsTold) {
    folder.write("file", "");
    EXPECT_THROW(ProfileStore(folder.path / "file" / "inside", bench.journal()), InputError);
}

TEST_F(ProfileStoreTest, AToldFailureGivesNoStorage) {
    bench.faults().fail("VxApProfileManager::profileStorage", {}, 1);
    EXPECT_EQ(storage(), nullptr);
    EXPECT_NE(storage(), nullptr);
}

}  // namespace workbench
