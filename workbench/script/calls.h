#pragma once

#include "workbench/script/arguments.h"
#include "workbench/script/session.h"

#include <vector>

namespace workbench::script {

/// Whether a call does something, which the journal then notes as a gesture, or only asks.
enum class CallKind { Asks, Acts };

/// One call that scripts can make. Its function returns how many results it pushed.
struct Call {
    const char* name;
    int (*function)(Session& session, Arguments& arguments);
    CallKind kind = CallKind::Asks;
};

/// The calls of the table `wb`, a list a file.
const std::vector<Call>& sessionCalls();
const std::vector<Call>& moduleCalls();
const std::vector<Call>& documentCalls();
const std::vector<Call>& dashboardCalls();
const std::vector<Call>& recordCalls();

}  // namespace workbench::script
