#include "workbench/drawing/record_factory.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/drawing_sections.h"

#include <gtest/gtest.h>

#include <set>

namespace workbench::drawing {
namespace {

/// What every kind of record promises about its properties.
class EveryRecord : public testing::TestWithParam<Section> {
protected:
    Database m_db;
    std::unique_ptr<DbObject> m_object = makeRecord(GetParam().kind);
};

TEST_P(EveryRecord, IsOfTheKindAskedFor) {
    ASSERT_NE(m_object, nullptr);
    EXPECT_EQ(m_object->kind(), GetParam().kind);
}

TEST_P(EveryRecord, HasPropertiesOfDifferentNamesThatTakeTheirOwnValuesBack) {
    std::set<std::string_view> seen;
    for (const std::string_view name : m_object->propertyNames()) {
        EXPECT_TRUE(seen.insert(name).second) << name;
        EXPECT_EQ(m_object->findProperty(name), name);
        const Value value = m_object->property(name, m_db);
        m_object->setProperty(name, value, m_db);
        EXPECT_EQ(m_object->property(name, m_db), value) << name;
    }
    EXPECT_FALSE(seen.empty());
}

TEST_P(EveryRecord, RefusesWhatNoPropertyIs) {
    EXPECT_TRUE(m_object->findProperty("nonsense").empty());
    EXPECT_THROW(m_object->property("nonsense", m_db), ValueError);
    EXPECT_THROW(m_object->setProperty("nonsense", 1, m_db), ValueError);
    for (const std::string_view name : m_object->propertyNames()) {
        EXPECT_THROW(m_object->setProperty(name, Value::Table{{"nonsense", 1}}, m_db), ValueError)
            << name;
    }
}

TEST_P(EveryRecord, HasANameIfItsKindHasNames) {
    EXPECT_EQ(m_object->findProperty("name") == "name" &&
                  GetParam().kind != RecordKind::ActiveRenderSettings,
              hasNames(GetParam().kind));
}

INSTANTIATE_TEST_SUITE_P(All, EveryRecord, testing::ValuesIn(kSections),
                         [](const auto& section) { return std::string(section.param.key); });

TEST(RecordFactory, TablesAreNotMade) {
    EXPECT_EQ(makeRecord(RecordKind::Table), nullptr);
}

}  // namespace
}  // namespace workbench::drawing
