#include "workbench/toolkit/theme.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CountingReactor final : public CQrUiThemeModifiedReactor {
public:
    void ThemeModified(int element) override {
        elements.push_back(element);
        if (onModified)
            onModified();
    }
    std::vector<int> elements;
    std::function<void()> onModified;
};

class ThemeTest : public testing::Test {
protected:
    Workbench m_workbench{WorkbenchOptions{}};
    Theme m_theme;
    CountingReactor m_reactor;
};

TEST_F(ThemeTest, AReactorIsRegisteredOnce) {
    m_theme.RegisterReactor(&m_reactor);
    m_theme.RegisterReactor(&m_reactor);
    m_theme.changeElement(3);
    EXPECT_THAT(m_reactor.elements, ElementsAre(3));
    m_theme.UnregisterReactor(&m_reactor);
    m_theme.UnregisterReactor(&m_reactor);
    m_theme.changeElement(3);
    EXPECT_EQ(m_reactor.elements.size(), 1U);
}

TEST_F(ThemeTest, AStoredPointerTellsTheReactors) {
    m_theme.RegisterReactor(&m_reactor);
    m_theme.SetDataPtr(2, &m_theme);
    EXPECT_EQ(m_theme.dataPtr(2), &m_theme);
    EXPECT_THAT(m_reactor.elements, ElementsAre(2));
}

TEST_F(ThemeTest, AStoredNumberTellsNobody) {
    m_theme.RegisterReactor(&m_reactor);
    m_theme.SetData(7, 42);
    EXPECT_EQ(m_theme.data(7), 42);
    EXPECT_EQ(m_theme.data(8), 0);
    EXPECT_THAT(m_reactor.elements, IsEmpty());
}

TEST_F(ThemeTest, WhatHappensWhileSuspendedIsNeverTold) {
    m_theme.RegisterReactor(&m_reactor);
    m_theme.SuspendModifiedNotifications();
    m_theme.SuspendModifiedNotifications();
    m_theme.SetDataPtr(2, &m_theme);
    m_theme.ResumeModifiedNotifications();
    m_theme.SetDataPtr(2, nullptr);
    m_theme.ResumeModifiedNotifications();
    EXPECT_THAT(m_reactor.elements, IsEmpty());
    m_theme.SetDataPtr(2, &m_theme);
    EXPECT_THAT(m_reactor.elements, ElementsAre(2));
}

TEST_F(ThemeTest, AReactorThatStoresWhileSuspendedIsNotCalledWithoutEnd) {
    m_theme.RegisterReactor(&m_reactor);
    m_reactor.onModified = [this] {
        m_theme.SuspendModifiedNotifications();
        m_theme.SetDataPtr(2, &m_theme);
        m_theme.ResumeModifiedNotifications();
    };
    m_theme.changeElement(3);
    EXPECT_THAT(m_reactor.elements, ElementsAre(3));
}

TEST_F(ThemeTest, AReactorMayRemoveAnotherDuringTheRound) {
    CountingReactor second;
    m_reactor.onModified = [&] { m_theme.UnregisterReactor(&second); };
    m_theme.RegisterReactor(&m_reactor);
    m_theme.RegisterReactor(&second);
    m_theme.changeElement(1);
    EXPECT_THAT(second.elements, IsEmpty());
}

TEST_F(ThemeTest, AMissingFontLeavesTheRecordAlone) {
    LOGFONT font;
    font.faceName = L"as before";
    EXPECT_EQ(m_theme.GetFont(9, font), 0);
    EXPECT_EQ(font.faceName, L"as before");
    m_theme.setFont(9, {L"Other", 14, 400, false});
    EXPECT_EQ(m_theme.GetFont(9, font), 1);
    EXPECT_EQ(font.height, 14);
}

TEST_F(ThemeTest, AFontCanBeToldToFail) {
    m_theme.setFont(3, {L"Any", 11, 400, false});
    m_workbench.faults().fail("CQrUiTheme::GetFont");
    LOGFONT font;
    EXPECT_EQ(m_theme.GetFont(3, font), 0);
}

}  // namespace
}  // namespace workbench
