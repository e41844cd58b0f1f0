#pragma once

#include "support/bytes.h"

#include <QByteArray>

#include <string_view>

namespace velmora::test {

/** Bytes from hexadecimal digits, as hex() reads them. */
[[nodiscard]] inline QByteArray bytesOf(std::string_view hexDigits) {
    return QByteArray::fromStdString(hex(hexDigits));
}

} // namespace velmora::test
