#pragma once

#include <QByteArray>
#include <QImage>

#include <atomic>

namespace velmora {

/** Whether PNG, which begins as one, has samples of 16 bits of more than one colour. The desktop's reader
   keeps those as 8 bytes a pixel. */
[[nodiscard]] bool isDeepPng(const QByteArray& png);

/** The picture in PNG with samples of 8 bits, in 4 bytes a pixel, with its colour profile. A null image when
   its data is damaged, or soon after CANCELLED has become true. For any thread. */
[[nodiscard]] QImage decodedInEightBits(const QByteArray& png, const std::atomic<bool>& cancelled);

} // namespace velmora
