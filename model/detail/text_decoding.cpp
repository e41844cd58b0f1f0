#include "text_decoding.h"

#include <QStringDecoder>

#include <optional>

namespace velmora {

namespace {

std::optional<QString> decoded(QByteArrayView bytes, int encoding) {
    switch (encoding) {
    case 4: {
        // Stateless, so that a truncated sequence at the end is an error too; a byte order mark stays in the
        // text.
        QStringDecoder decoder(QStringConverter::Utf8,
                               QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
        QString text = decoder.decode(bytes);
        return decoder.hasError() ? std::nullopt : std::optional(text);
    }
    case 5:
        return QString::fromLatin1(bytes);
    default:
        return std::nullopt; // never reached: Latin 1 takes every byte sequence
    }
}

} // namespace

QString decodeTagText(QByteArrayView bytes) {
    for (const int encoding : conv_test) {
        if (auto text = decoded(bytes, encoding)) {
            return *text;
        }
    }
    return {};
}

} // namespace velmora
