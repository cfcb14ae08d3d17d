#include "text/text_height_list.h"

#include "text/style_height.h"

#include <hostapi/vxdb18/host_services.h>
#include <hostapi/zorq/variables.h>

#include <algorithm>
#include <map>

namespace {

constexpr const wchar_t* kHeightVariable = L"TEXTSIZE";
constexpr int kDrawingsOwn = -1;  // unit and precision

using Lists = std::map<const VxApDocument*, std::shared_ptr<TextHeightList>>;
Lists s_lists;
std::shared_ptr<TextHeightList> s_current;  // null: no document

std::optional<double> readHeightVariable() {
    VxResultBuffer buffer;
    if (vxedGetVar(kHeightVariable, &buffer) != kRtNorm || buffer.type != kRtReal)
        return {};
    return buffer.value.real;
}

/// A height as it is after it was shown and read again.
std::optional<double> roundedAsShown(double height) {
    const std::optional<VxString> text = formatHeight(height);
    double rounded = 0.0;
    if (!text || vxdbDisToF(text->c_str(), kDrawingsOwn, &rounded) != kRtNorm)
        return {};
    return rounded;
}

bool anyLooksLike(const std::vector<double>& heights, double height) {
    const std::optional<VxString> text = formatHeight(height);
    return text && std::any_of(heights.begin(), heights.end(),
                               [&text](double known) { return formatHeight(known) == text; });
}

}  // namespace

std::shared_ptr<TextHeightList> currentTextHeights() {
    return s_current;
}

bool selectTextHeights(const VxApDocument* document) {
    std::shared_ptr<TextHeightList>& list = s_lists[document];
    if (list == nullptr)
        list = std::make_shared<TextHeightList>();
    if (s_current == list)
        return false;
    s_current = list;
    return true;
}

bool dropTextHeights(const VxApDocument* document) {
    const auto found = s_lists.find(document);
    if (found == s_lists.end())
        return false;
    const bool wasCurrent = s_current == found->second;
    s_lists.erase(found);
    if (wasCurrent)
        s_current = nullptr;
    return wasCurrent;
}

void dropAllTextHeights() {
    s_current = nullptr;
    s_lists.clear();
}

std::optional<VxString> formatHeight(double height) {
    VxString text;
    if (vxdbRToS(height, kDrawingsOwn, kDrawingsOwn, text) != kRtNorm)
        return {};
    return text;
}

bool AddHeight(double height) {
    const std::shared_ptr<TextHeightList> list = s_current;
    if (list == nullptr)
        return false;
    // A copy, because writing a height as a text asks the host.
    const std::vector<double> known = list->values;
    // Kept as it is: the older of two heights that look the same stays, because it is what the drawing
    // has used.
    if (!anyLooksLike(known, height))
        list->values.push_back(height);
    list->currentHeight = height;
    return true;
}

void AddTextSize() {
    const std::optional<double> height = readHeightVariable();
    const std::optional<double> rounded = height ? roundedAsShown(*height) : std::nullopt;
    if (rounded)
        AddHeight(*rounded);
}

void FollowStyle() {
    const double height = GetStyleHeight();
    if (height < 0.0)
        return;
    const bool variable = height == 0.0;
    if (variable)
        AddTextSize();
    if (s_current != nullptr)
        s_current->variableHeight = variable;
    if (!variable)
        AddHeight(height);
}
