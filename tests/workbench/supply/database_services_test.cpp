#include "tests/workbench/editor/editor_fixture.h"

#include <hostapi/vxdb18/host_services.h>

namespace workbench {

using HostServicesTest = EditorTest;

TEST_F(HostServicesTest, TellProgramAndWorkingDatabase) {
    VxDbHostApplicationServices* services = vxdbHostApplicationServices();
    ASSERT_NE(services, nullptr);
    EXPECT_EQ(services->program(), L"ZORQ");
    EXPECT_EQ(services->workingDatabase(), nullptr);
    Document& document = newDocument();
    EXPECT_EQ(services->workingDatabase(), document.database());
    m_bench.faults().fail("VxDbHostApplicationServices::workingDatabase");
    EXPECT_EQ(services->workingDatabase(), nullptr);
    m_bench.faults().fail("vxdbHostApplicationServices");
    EXPECT_EQ(vxdbHostApplicationServices(), nullptr);
}

TEST_F(HostServicesTest, DistancesAreTakenInTheUnitAskedForOrTheDrawings) {
    newDocument();
    double value = -1;
    EXPECT_EQ(vxdbDisToF(L"45", -1, &value), 5100);
    EXPECT_EQ(value, 45.0);
    EXPECT_NE(vxdbDisToF(L"1'", -1, &value), 5100);
    EXPECT_EQ(value, 45.0);
    EXPECT_EQ(vxdbDisToF(L"1'", 4, &value), 5100);
    EXPECT_EQ(value, 12.0);
    editor().set(L"LUNITS", 3);
    EXPECT_EQ(vxdbDisToF(L"2'", -1, &value), 5100);
    EXPECT_EQ(value, 24.0);
}

TEST_F(HostServicesTest, ADistanceWithoutADocumentIsDecimal) {
    double value = -1;
    EXPECT_EQ(vxdbDisToF(L"2.5", -1, &value), 5100);
    EXPECT_EQ(value, 2.5);
}

TEST_F(HostServicesTest, WhatIsNoDistanceLeavesTheValue) {
    double value = -1;
    EXPECT_NE(vxdbDisToF(L"nonsense", -1, &value), 5100);
    EXPECT_NE(vxdbDisToF(nullptr, -1, &value), 5100);
    EXPECT_NE(vxdbDisToF(L"1", -1, nullptr), 5100);
    EXPECT_NE(vxdbDisToF(L"1", 0, &value), 5100);
    EXPECT_NE(vxdbDisToF(L"1", 6, &value), 5100);
    m_bench.faults().fail("vxdbDisToF");
    EXPECT_NE(vxdbDisToF(L"1", -1, &value), 5100);
    EXPECT_EQ(value, -1.0);
}

}  // namespace workbench
