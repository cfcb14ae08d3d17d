#include "layer/layer_texts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

struct LayerText {
    std::wstring_view key;
    const wchar_t* text;
};

/// "{0}" stands for what differs from case to case.
constexpr LayerText kTexts[] = {
    {L"GroupFilter", L"Group Filter"},
    {L"FilterProxy_ViewportOverrides", L"Viewport Overrides"},
    {L"FilterProxy_UnreconcileNew", L"Unreconciled New Layers"},
    {L"FilterErrorTooFewChars", L"A layer filter needs a name."},
    {L"FilterErrorNonUniqueName", L"A layer filter of this name exists already."},
    {L"FilterErrorInvalidChars", L"The name of a layer filter can't contain these characters: {0}"},
    {L"FilterErrorMoreThanMaxChars",
     L"The name of a layer filter can't be longer than {0} characters."},
    {L"IDS_NOM_BAD_CHARSET_ESN", L"< > / \\ \" : ; ? * | , = `"},
    {L"IDS_NOM_BAD_CHARSET", L"all but letters, digits, blanks, $, _ and -"},
};

}  // namespace

VxString CVxDaLyCtrlMgdResMgr::GetLocalResString(const wchar_t* key) {
    const auto* found = std::find_if(std::begin(kTexts), std::end(kTexts),
                                     [key](const LayerText& row) { return row.key == key; });
    return found == std::end(kTexts) ? VxString() : VxString(found->text);
}
