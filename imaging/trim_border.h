#pragma once

#include <QImage>

#include <cstdint>
#include <optional>

namespace velmora {

/** What the trim asks of the desktop, one step each. A null result is a failure of that step. Tests replace
   steps; the program uses them as they are. */
class TrimBorderSteps {
public:
    virtual ~TrimBorderSteps() = default;

    /** The pixels behind COVER, without its nominal size. */
    [[nodiscard]] virtual QImage imageSource(const QImage& cover) const;
    /** The picture in SOURCE, in the colour space of the screen. */
    [[nodiscard]] virtual QImage image(const QImage& source) const;
    /** IMAGE as a bitmap whose samples lie R, G, B, A in memory, 8 bits each, premultiplied, rows packed. */
    [[nodiscard]] virtual QImage context(const QImage& image) const;
    /** The bitmap's pixels, one 32-bit word each. */
    [[nodiscard]] virtual const std::uint32_t* bitmapData(const QImage& context) const;
    /** Storage of the same layout for the result; its rows may be padded. */
    [[nodiscard]] virtual QImage representation(int width, int height) const;
};

/** The work of the trim button: COVER with its border of one colour cut off, at its new pixel size and with a
   device pixel ratio of 1 (the nominal size of COVER plays no part). Nothing when there is no border that can
   be cut or a step failed; the application log then has one line that says why, except for a null COVER. */
[[nodiscard]] std::optional<QImage> trim_border(const QImage& cover,
                                                const TrimBorderSteps& steps = TrimBorderSteps());

} // namespace velmora
