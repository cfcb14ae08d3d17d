#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace workbench::desktop {

inline QString toQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::wstring toHost(const QString& text) {
    return text.toStdWString();
}

}  // namespace workbench::desktop
