#pragma once

#include "tests/nav3d/nav_fixture.h"

#include <ostream>
#include <string>

/// What the two controls differ in.
struct PointCase {
    const char* control;
    int windowId;
    const wchar_t* itemId;
    const char* image;
    UINT itemName;
    UINT firstTip;
    const char* path;   // of the point that it shows
    const char* other;  // of the point that stays
    const char* function;
    int stripId;
};

inline void PrintTo(const PointCase& row, std::ostream* out) {
    *out << row.control;
}

inline const PointCase kEyeCase{"3DNavPointTriplet1",
                                105,
                                L"TPB_3DNAV_POINTTRIPLET1",
                                "RCDATA_3DNAV_POINTTRIPLETPANEL1",
                                1235,
                                1274,
                                "eye",
                                "target",
                                "navUpdateCameraPosition",
                                5008};
inline const PointCase kTargetCase{"3DNavPointTriplet2",
                                   106,
                                   L"TPB_3DNAV_POINTTRIPLET2",
                                   "RCDATA_3DNAV_POINTTRIPLETPANEL2",
                                   1236,
                                   1277,
                                   "target",
                                   "eye",
                                   "navUpdateCameraTarget",
                                   5009};

/// Test fixture: one of the two controls, the camera at (10, 20, 30) looking at (1, 2, 3).
class CameraPointTest : public NavControlTest, public testing::WithParamInterface<PointCase> {
protected:
    void SetUp() override {
        showControl(GetParam().control);
        setDb("viewports.current.eye", point(10.0, 20.0, 30.0));
        setDb("viewports.current.target", point(1.0, 2.0, 3.0));
        set(L"LUPREC", 1);
        takeJournal();
    }
    static workbench::Value point(double x, double y, double z) {
        return workbench::Value::List{x, y, z};
    }
    bool isEye() { return GetParam().windowId == 105; }
    std::wstring shownX() { return GetParam().windowId == 105 ? L"10.0" : L"1.0"; }
    double own(const char* axis) {
        return number(std::string("viewports.current.") + GetParam().path + "." + axis);
    }
};
