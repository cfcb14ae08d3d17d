#pragma once

#include "core/text.h"

#include <algorithm>
#include <span>
#include <string_view>

enum class NameMatch {
    Exact,    ///< In exactly this spelling, as the host sends it.
    AnyCase,  ///< Without regard to case.
};

/// Names of variables or commands that concern somebody. The names themselves are static.
struct EventNames {
    std::span<const std::wstring_view> names;
    NameMatch match = NameMatch::Exact;

    bool contains(std::wstring_view name) const {
        return std::any_of(names.begin(), names.end(), [this, name](std::wstring_view known) {
            return match == NameMatch::Exact ? known == name : equalNoCase(known, name);
        });
    }
};
