#include "module/family_rows.h"

#include "layer/filter_combo.h"
#include "tests/palette/palette_fixture.h"

#include <string>
#include <vector>

namespace {

using Road = std::vector<std::string>;

class FamilyRowsTest : public PaletteTest {
protected:
    void SetUp() override {
        show();
        // The first event of all brings the material mode up to date, whatever it is.
        refreshFamiliesForVariable(L"LTSCALE");
        forget();
    }
    /// What was refreshed since the journal was forgotten: "filters", or the variable that was read
    /// first.
    std::string refreshed() {
        for (const workbench::JournalRecord& record : bench().journal().take()) {
            if (record.field("name") == workbench::Value("vxlyGetLayerFilterManager"))
                return "filters";
            if (record.field("name") == workbench::Value("vxedGetVar"))
                return record.field("args").asList().front().asString();
        }
        return "";
    }

    CVxDaFilterComboCtrl m_list;
};

struct NameRow {
    const wchar_t* name;
    const char* byVariable;
    const char* byCommand;
};

class FamilyNameTest : public FamilyRowsTest, public testing::WithParamInterface<NameRow> {};

TEST_P(FamilyNameTest, RefreshesTheFamilyThatItConcerns) {
    refreshFamiliesForVariable(GetParam().name);
    EXPECT_EQ(refreshed(), GetParam().byVariable);
    refreshFamiliesForCommand(GetParam().name);
    EXPECT_EQ(refreshed(), GetParam().byCommand);
}

INSTANTIATE_TEST_SUITE_P(
    Names, FamilyNameTest,
    testing::Values(NameRow{L"VSMATERIALMODE", "VSMATERIALMODE", "VSMATERIALMODE"},
                    NameRow{L"vscurrent", "VSMATERIALMODE", "VSMATERIALMODE"},
                    NameRow{L"LIGHTINGUNITS", "LIGHTINGUNITS", ""},
                    NameRow{L"LightingUnits", "LIGHTINGUNITS", ""},
                    NameRow{L"TILEMODE", "filters", ""}, NameRow{L"Tilemode", "", ""},
                    NameRow{L"LAYER", "", "filters"}, NameRow{L"-layer", "", "filters"},
                    NameRow{L"U", "", "filters"}, NameRow{L"undo", "", "filters"},
                    NameRow{L"REDO", "", "filters"}, NameRow{L"LINE", "", ""},
                    NameRow{L"", "", ""}));

TEST_F(FamilyRowsTest, DocumentThatBecomesCurrentConcernsTheLayerFiltersAlone) {
    refreshFamiliesForDocument();
    EXPECT_EQ(refreshed(), "filters");
    EXPECT_EQ(refreshed(), "");
}

}  // namespace
