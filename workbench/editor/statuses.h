#pragma once

#include <hostapi/types.h>

namespace workbench {

/// \name Statuses of document, command and name calls
/// @{
constexpr Zorq::ErrorStatus kNotApplicable = 2;
constexpr Zorq::ErrorStatus kInvalidInput = 3;
constexpr Zorq::ErrorStatus kDuplicateKey = 28;
constexpr Zorq::ErrorStatus kKeyNotFound = 29;
constexpr Zorq::ErrorStatus kNoDatabase = 124;
constexpr Zorq::ErrorStatus kStringTooLong = 160;
constexpr Zorq::ErrorStatus kInvalidSymbolName = 352;
constexpr Zorq::ErrorStatus kLockViolation = 371;
constexpr Zorq::ErrorStatus kNoDocument = 372;
constexpr Zorq::ErrorStatus kNoLock = 373;
/// @}

}  // namespace workbench
