#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace velmora::test {

/** How light COLOUR is to the eye, from 0 to 1: the relative luminance of the web's
   accessibility guidelines. */
inline double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/** What stands out most in PICTURE from its first pixel, as a contrast from 1 to 21. Text wants 4.5, and
   signs and greyed texts some 3. */
inline double contrast(const QImage& picture) {
    const double ground = luminance(picture.pixelColor(0, 0)) + 0.05;
    double highest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double here = luminance(picture.pixelColor(x, y)) + 0.05;
            highest = std::max({highest, here / ground, ground / here});
        }
    }
    return highest;
}

} // namespace velmora::test
