#pragma once

#include "tests/nav3d/nav_fixture.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

/// Test fixture: the lens control in a perspective view with a lens of 50 mm.
class ZoomSliderTest : public NavControlTest {
protected:
    void SetUp() override {
        showControl("3DNavZoomSliderControl");
        set(L"PERSPECTIVE", 1);
        set(L"LUPREC", 2);
        setLens(50.0);
        announce(L"CVPORT");
        takeJournal();
    }

    void setLens(double lens) { setDbQuietly("viewports.current.lens", lens); }
    double lens() { return db("viewports.current.lens").asReal(); }
    /// Goes to a locked viewport of a layout; a tile of model space has no lock.
    void lockViewport() {
        openDrawing("examples/house.json");
        set(L"TILEMODE", 0);
        set(L"CVPORT", 2);
        set(L"PERSPECTIVE", 1);
        setDb("viewports.current.locked", true);
    }
    void endACommand() {
        begin(L"LINE");
        finish();
    }
    const workbench::SliderWidget& widget() {
        return *dynamic_cast<workbench::SliderWidget*>(
            bench().windows().find(slider())->widget.get());
    }
};
