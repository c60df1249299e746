#include "qt/texts.h"

#include "platform/code_page.h"

#include <QStringDecoder>

namespace arbolith {

QString ToQString(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* out = result.data();
    for (const char c : text)
        *out++ = QChar(static_cast<char16_t>(CodePointOf(static_cast<unsigned char>(c))));
    return result;
}

// No text of the program's own is by chance such a sequence of bytes.
QString ToShownText(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded =
        decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return decoder.hasError() ? ToQString(text) : decoded;
}

std::string FromQString(QStringView text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        result += static_cast<char>(ByteOf(text[i].unicode()));
        if (isPair) ++i;
    }
    return result;
}

QString WithoutAccessKey(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) ++i;
        result += text[i];
    }
    return result;
}

}  // namespace arbolith
