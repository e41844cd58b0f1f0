#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>

namespace velmora {

/** Encodings that a tag's bytes are tried with, in this order, under their traditional numbers: UTF-8, ISO
   Latin 1, Mac OS Roman, ISO Latin 2, Windows 1252, 1250, 1251, 1253 and 1254, Japanese EUC, ISO-2022-JP,
   Shift JIS. Every byte sequence is valid ISO Latin 1, so the ones behind it only document what was thought
   of. */
inline constexpr std::array<int, 12> conv_test = {4, 5, 30, 9, 12, 15, 11, 13, 14, 3, 21, 8};

/** The text of a tag's bytes: the first encoding of conv_test that fits. Empty for no bytes. */
[[nodiscard]] QString decodeTagText(QByteArrayView bytes);

} // namespace velmora
