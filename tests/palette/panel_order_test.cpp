#include "palette/panel_order.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Ids = std::vector<VxString>;

class PanelOrderTest : public testing::Test {
protected:
    PanelOrderTest() {
        add(L"MAIN", L"A");
        add(L"MAIN", L"B");
        add(L"OTHER", L"A");
        add(L"MAIN", L"C");
    }
    void add(const wchar_t* menuGroup, const wchar_t* id) {
        auto record = std::make_unique<PanelRecord>();
        record->menuGroup = menuGroup;
        record->id = id;
        m_records.push_back(std::move(record));
    }
    static VxString nameOf(const PanelRecord& record) {
        return record.menuGroup + L"/" + record.id;
    }
    Ids named(const VxDaPanelList& list) {
        Ids names;
        for (const PanelRecord* record : recordsInList(m_records, list))
            names.push_back(nameOf(*record));
        return names;
    }
    Ids ordered(const VxDaPanelList& list) {
        orderByList(m_records, list);
        Ids names;
        for (const auto& record : m_records)
            names.push_back(nameOf(*record));
        return names;
    }

    PanelRecords m_records;
};

TEST_F(PanelOrderTest, ListNamesRecordsInItsOrder) {
    EXPECT_EQ(named({{L"C", L"MAIN"}, {L"A", L"OTHER"}, {L"A", L"MAIN"}}),
              (Ids{L"MAIN/C", L"OTHER/A", L"MAIN/A"}));
    EXPECT_EQ(named({}), Ids{});
}

TEST_F(PanelOrderTest, RecordsThatTheListDoesNotNameFollowInTheirOrder) {
    EXPECT_EQ(ordered({{L"C", L"MAIN"}, {L"B", L"MAIN"}}),
              (Ids{L"MAIN/C", L"MAIN/B", L"MAIN/A", L"OTHER/A"}));
}

TEST_F(PanelOrderTest, EmptyListLeavesTheOrder) {
    EXPECT_EQ(ordered({}), (Ids{L"MAIN/A", L"MAIN/B", L"OTHER/A", L"MAIN/C"}));
}

TEST_F(PanelOrderTest, NamesAreExactInBothTheirParts) {
    const VxDaPanelList list{{L"a", L"MAIN"}, {L"B", L"main"}, {L"B", L"OTHER"}, {L"X", L"MAIN"}};
    EXPECT_EQ(named(list), Ids{});
    EXPECT_EQ(ordered(list), (Ids{L"MAIN/A", L"MAIN/B", L"OTHER/A", L"MAIN/C"}));
}

TEST_F(PanelOrderTest, NameThatStandsTwiceInTheListCountsOnceForOneRecord) {
    EXPECT_EQ(named({{L"B", L"MAIN"}, {L"B", L"MAIN"}}), Ids{L"MAIN/B"});
}

TEST_F(PanelOrderTest, NameThatStandsTwiceInTheListCountsForTwoRecordsOfThatName) {
    add(L"MAIN", L"B");
    const auto found = recordsInList(m_records, {{L"B", L"MAIN"}, {L"B", L"MAIN"}});
    EXPECT_EQ(found, (std::vector<PanelRecord*>{m_records[1].get(), m_records[4].get()}));
}

TEST_F(PanelOrderTest, RecordsKeepTheirPlacesInMemory) {
    const PanelRecord* last = m_records.back().get();
    orderByList(m_records, {{L"C", L"MAIN"}});
    EXPECT_EQ(m_records.front().get(), last);
    EXPECT_EQ(m_records.size(), 4U);
}

}  // namespace
