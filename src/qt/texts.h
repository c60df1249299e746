// The border between the program's 8-bit texts and Qt's.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace arbolith {

/// Qt's text for a Windows-1252 one.
QString ToQString(std::string_view text);

/// The same for what is only shown: a text with a path in it, whose bytes are the file system's, is
/// shown as these say.
QString ToShownText(std::string_view text);

/// Windows-1252 for Qt's text; a character outside the code page becomes '?'.
std::string FromQString(QStringView text);

/// The text without the "&" before its access key; "&&" stands for one "&".
QString WithoutAccessKey(const QString& text);

}  // namespace arbolith
