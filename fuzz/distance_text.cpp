#include "workbench/editor/distance_text.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

/// In each unit any text means a distance or none; a sign in front turns it round.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using workbench::LinearUnit;
    const std::wstring text(data, data + size);
    for (const LinearUnit unit :
         {LinearUnit::Scientific, LinearUnit::Decimal, LinearUnit::Engineering,
          LinearUnit::Architectural, LinearUnit::Fractional}) {
        const std::optional<double> distance = workbench::parseDistance(text, unit);
        if (!distance || text.front() == L'-' || text.front() == L'+' || text.front() == L' ' ||
            text.front() == L'\t')
            continue;
        if (!std::isfinite(*distance) || workbench::parseDistance(L"-" + text, unit) != -*distance)
            std::abort();
    }
    return 0;
}
