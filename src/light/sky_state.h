#pragma once

#include <hostapi/types.h>

#include <optional>

/// Status of the sky, the host's numbers.
constexpr int kSkyStatusOff = 0;
constexpr int kSkyStatusOn = 11;

/// Tools of the sky flyout.
constexpr const wchar_t* kSkyOffTool = L"ID_Skylight_Off";
constexpr const wchar_t* kSkyBackgroundTool = L"ID_Skylight_Background";
constexpr const wchar_t* kSkyIlluminationTool = L"ID_Skylight_Illumination";

/// The sky's status in the active viewport: on for a background of the sky, otherwise off; nothing
/// if no background can be had.
std::optional<int> readSkyStatus();
/// Whether the sky of the active viewport gives light; false without a sun.
bool readSkyIllumination();
