#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace coinlet {

inline QString ToQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string ToUtf8(const QString& text) {
    return text.toStdString();
}

}  // namespace coinlet
