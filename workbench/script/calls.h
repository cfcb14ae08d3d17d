#pragma once

#include "workbench/script/arguments.h"
#include "workbench/script/session.h"

#include <vector>

namespace workbench::script {

/// One call that scripts can make: its name and what it does. Returns how many results it pushed.
struct Call {
    const char* name;
    int (*function)(Session& session, Arguments& arguments);
};

/// The calls of the table `wb`, a list a file.
const std::vector<Call>& sessionCalls();
const std::vector<Call>& moduleCalls();
const std::vector<Call>& documentCalls();
const std::vector<Call>& dashboardCalls();
const std::vector<Call>& recordCalls();

}  // namespace workbench::script
