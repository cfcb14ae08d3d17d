#include "workbench/profiles/variable_element.h"

#include <gtest/gtest.h>

#include <limits>

namespace workbench {

class VariableElementTest : public testing::Test {
protected:
    pugi::xml_document document;
    pugi::xml_node section = document.append_child("Variables");
};

TEST_F(VariableElementTest, ValuesComeBackInTheirType) {
    writeVariable(section, "LAYLOCKFADECTL", -50);
    writeVariable(section, "STEPSIZE", 0.1);
    writeVariable(section, "SMALL", std::numeric_limits<double>::denorm_min());
    writeVariable(section, "DASHBOARDNAME", "a \"b\" <c>");
    EXPECT_TRUE(readVariable(section, "LAYLOCKFADECTL").isInteger());
    EXPECT_EQ(readVariable(section, "LAYLOCKFADECTL"), Value(-50));
    EXPECT_TRUE(readVariable(section, "STEPSIZE").isReal());
    EXPECT_EQ(readVariable(section, "STEPSIZE").asReal(), 0.1);
    EXPECT_EQ(readVariable(section, "SMALL").asReal(), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(readVariable(section, "DASHBOARDNAME"), Value("a \"b\" <c>"));
}

TEST_F(VariableElementTest, NamesAreTakenWithoutRegardToCase) {
    writeVariable(section, "Stepsize", 1.5);
    writeVariable(section, "STEPSIZE", 2.5);
    EXPECT_EQ(readVariable(section, "stepsize").asReal(), 2.5);
    EXPECT_EQ(std::distance(section.begin(), section.end()), 1);
}

TEST_F(VariableElementTest, NilTakesAVariableAway) {
    writeVariable(section, "STEPSIZE", 1.5);
    writeVariable(section, "STEPSIZE", Value());
    EXPECT_TRUE(readVariable(section, "STEPSIZE").isNil());
    EXPECT_FALSE(section.first_child());
}

TEST_F(VariableElementTest, AnElementThatMakesNoSenseIsNil) {
    ASSERT_TRUE(
        document.load_string("<V><Variable Name='A' Type='integer' Value='1.5'/>"
                             "<Variable Name='B' Type='color' Value='1'/>"
                             "<Variable Name='C'/></V>"));
    for (const char* name : {"A", "B", "C", "D"})
        EXPECT_TRUE(readVariable(document.first_child(), name).isNil()) << name;
}

}  // namespace workbench
