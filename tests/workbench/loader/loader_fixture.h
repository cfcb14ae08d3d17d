#pragma once

#include "tests/workbench/host/test_options.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <gtest/gtest.h>

namespace workbench {

/// A workbench on the libraries of the build, and with no menu.
class LoaderTest : public testing::Test {
protected:
    static constexpr const wchar_t* kModule = L"VxTp.qlx";
    static constexpr const wchar_t* kService = L"ZorqToolPalette";
    static constexpr const wchar_t* kResources = L"VxDashboardRes.dll";

    Faults& faults() { return bench.faults(); }
    ModuleLoader& modules() { return bench.modules(); }
    LibraryTable& libraries() { return bench.modules().libraries(); }
    SystemRegistry& registry() { return bench.modules().registry(); }

    Workbench bench{testOptions()};
};

}  // namespace workbench
