#include "tests/layer/fade_fixture.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

class FadeButtonTest : public FadeSliderTest {
protected:
    /// How often the control is asked to be painted while the variable changes.
    std::ptrdiff_t repaintsOf(int fade) {
        std::vector<HWND> touched;
        bench().windows().changes().setObserver(
            [&touched](HWND changed) { touched.push_back(changed); });
        set(kVariable, fade);
        bench().windows().changes().setObserver(nullptr);
        return std::count(touched.begin(), touched.end(), window());
    }
};

TEST_F(FadeButtonTest, IsPaintedAnewForEachOfItsPicturesAndOnceMore) {
    EXPECT_EQ(repaintsOf(-20), 3);
}

TEST_F(FadeButtonTest, IsPaintedAnewAlsoWithoutAPicture) {
    fail("QrUiLoadImageFromResource", {}, 2);
    EXPECT_EQ(repaintsOf(-20), 1);
    EXPECT_EQ(buttonImage(), "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON");
}

TEST_F(FadeButtonTest, IsLeftAloneByTheValueThatItShows) {
    EXPECT_EQ(repaintsOf(50), 0);
}

}  // namespace
