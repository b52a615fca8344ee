// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTMARKER_P_H
#define UTILS_PLOTMARKER_P_H

// Internal to the marker classes: not installed.

namespace Utils {
namespace MarkerPen {

//! Width on entering a moveable marker: trunc(width x 1.5), exact in integers.
inline int enlargedWidth(int width)
{
    return width * 3 / 2;
}

/*!
    Width on leaving: trunc(width x 0.6666666666666666) evaluated on the decimal
    factor itself, not on the nearest double. The decimal is 2/3 x (1 - 1e-16),
    so for a multiple of 3 the product lies just below 2w/3 and truncates one
    lower; for any other width the tiny shortfall cannot cross an integer. A
    double multiply would round 3 x 0.666... up to exactly 2.0 and lose the
    documented thinning (2 -> 3 on entering, 3 -> 1 on leaving).
*/
inline int shrunkWidth(int width)
{
    if (width <= 0)
        return 0;
    return width % 3 == 0 ? width / 3 * 2 - 1 : width * 2 / 3;
}

} // namespace MarkerPen
} // namespace Utils

#endif // UTILS_PLOTMARKER_P_H
