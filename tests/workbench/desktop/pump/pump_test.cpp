#include "workbench/desktop/pump/pump.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <stdexcept>

namespace workbench::desktop {
namespace {

class PumpTest : public testing::Test {
protected:
    PumpTest() { m_pump.resume(); }

    /// Lets Qt run until something holds, for a second at most.
    template <class Condition>
    bool waitFor(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 1000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return condition();
    }

    Workbench m_workbench{testOptions()};
    Pump m_pump{m_workbench};
};

TEST_F(PumpTest, WhatWasSetGoingRunsBehindIt) {
    m_workbench.editor().documents().create(L"A");
    m_pump.act([this] {
        vxDocManagerPtr()->sendToCommandLine(m_workbench.editor().documents().curDocument(),
                                             L"LUPREC\n7\n", false, false, false);
    });
    EXPECT_EQ(m_workbench.editor().read(L"LUPREC"), Value(7));
}

TEST_F(PumpTest, TheClockGoesWithRealTimeAndTimersFire) {
    CWnd window;
    WindowCreation creation;
    creation.className = "Test";
    m_workbench.windows().create(window, std::move(creation));
    const std::int64_t before = m_workbench.clock().now();
    m_pump.act([&] { window.SetTimer(3, 20); });
    EXPECT_TRUE(m_workbench.windows().timers().nextDue().has_value());
    EXPECT_TRUE(waitFor([&] { return m_workbench.clock().now() >= before + 20; }));
    m_workbench.windows().destroy(window.m_hWnd);
}

TEST_F(PumpTest, ItBeginsHeld) {
    const Pump fresh(m_workbench);
    EXPECT_TRUE(fresh.isHeld());
}

TEST_F(PumpTest, WhileItIsHeldTheClockStandsAndTheHostIsNotRun) {
    m_workbench.editor().documents().create(L"A");
    m_pump.hold();
    const std::int64_t before = m_workbench.clock().now();
    int rests = 0;
    m_pump.setOnRest([&rests] { ++rests; });
    m_pump.act([this] {
        vxDocManagerPtr()->sendToCommandLine(m_workbench.editor().documents().curDocument(),
                                             L"LUPREC\n7\n", false, false, false);
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(rests, 1) << "there is no idle tick";
    EXPECT_EQ(m_workbench.clock().now(), before);
    EXPECT_NE(m_workbench.editor().read(L"LUPREC"), Value(7));
    m_pump.resume();
    EXPECT_FALSE(m_pump.isHeld());
    EXPECT_EQ(m_workbench.editor().read(L"LUPREC"), Value(7));
}

TEST_F(PumpTest, AFailureIsToldAndEndsNothing) {
    QString told;
    int rests = 0;
    m_pump.setOnFailure([&told](const QString& text) { told = text; });
    m_pump.setOnRest([&rests] { ++rests; });
    m_pump.act([] { throw std::runtime_error("no such file"); });
    EXPECT_EQ(told, QStringLiteral("no such file"));
    EXPECT_EQ(rests, 1);
}

TEST_F(PumpTest, AnIdleTickFollows) {
    int rests = 0;
    m_pump.setOnRest([&rests] { ++rests; });
    m_pump.act([] {});
    EXPECT_TRUE(waitFor([&rests] { return rests == 2; }));
}

TEST_F(PumpTest, InsideAnotherActTheHostIsNotRun) {
    int inner = -1;
    m_workbench.editor().documents().create(L"A");
    m_pump.act([&] {
        m_pump.act([this] {
            vxDocManagerPtr()->sendToCommandLine(m_workbench.editor().documents().curDocument(),
                                                 L"LUPREC\n6\n", false, false, false);
        });
        inner = static_cast<int>(m_workbench.editor().read(L"LUPREC").asInteger());
    });
    EXPECT_NE(inner, 6);
    EXPECT_EQ(m_workbench.editor().read(L"LUPREC"), Value(6));
}

}  // namespace
}  // namespace workbench::desktop
