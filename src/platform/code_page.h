// Windows-1252 to and from UTF-8. The five bytes that the code page leaves open map to the control
// characters of the same number, so that every byte comes back as it was.
#pragma once

#include <string>
#include <string_view>

namespace arbolith {

/// The code point of a Windows-1252 byte.
char32_t CodePointOf(unsigned char byte);

/// The Windows-1252 byte of a code point, '?' for one outside the code page.
unsigned char ByteOf(char32_t codePoint);

/// UTF-8 for Windows-1252 text.
std::string ToUtf8(std::string_view text);

/// UTF-8 for a text from outside: as it stands where it is UTF-8, else taken for Windows-1252.
std::string AnyToUtf8(std::string_view text);

/// Windows-1252 for UTF-8 text; what is not in the code page, or not UTF-8, becomes '?'.
std::string FromUtf8(std::string_view utf8);

}  // namespace arbolith
