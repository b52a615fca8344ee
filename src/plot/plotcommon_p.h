// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTCOMMON_P_H
#define UTILS_PLOTCOMMON_P_H

// Internal to the plot tools: not installed.

#include "utils_export.h"

#include <QImage>
#include <QLoggingCategory>
#include <QString>

#include <algorithm>
#include <cmath>

class QPainter;
class QPoint;

Q_DECLARE_LOGGING_CATEGORY(lcUtilsPlot)

namespace Utils {
namespace PlotCommon {

/*!
    Major step for a value span as the plot's centre zoom uses it. Sets
    \a ultraZoomed when the span is below 0.1 (the caller then tells listeners).
*/
double centreZoomStep(double span, bool *ultraZoomed);

/*!
    The quieter rule of the zoomer and the panner for spans below 1.5: never
    reports deep zoom and stops at 0.001, where the centre zoom goes on to 0.0005.
*/
double quietStep(double span);

//! Step re-applied by the zoomer and the panner when the value span is below 4.0.
inline double smallSpanStep(double span)
{
    return span >= 1.5 ? 0.5 : quietStep(span);
}

/*!
    Pixel row or column of a transformed value as an int. Values far off the
    canvas would overflow an int (undefined behaviour); they are held at +-1e7,
    where they are still off screen. NaN gives 0.
*/
inline int toPixel(double pixel)
{
    if (std::isnan(pixel))
        return 0;
    return int(std::max(-1.0e7, std::min(pixel, 1.0e7)));
}

//! \a value rounded to the nearest int, held at the int range; NaN gives 0.
inline int toInt(double value)
{
    if (std::isnan(value))
        return 0;
    return int(std::lround(std::max(-2147483648.0, std::min(value, 2147483647.0))));
}

//! "<application dir>/settings.ini", the one INI file of the library.
QString settingsFileName();
//! plot/xPlotAxisType: 0 = "Time", 1 = "Date + Time"; 0 when missing. Read once, then kept.
int xPlotAxisType();
//! Reads the file again at the next xPlotAxisType(), for changes made outside the axis menu.
void reloadXPlotAxisType();
void setXPlotAxisType(int type);

/*!
    True when an image drawn with \a painter lands pixel for pixel on the device:
    a raster engine, no scaling or rotation (whole-pixel offsets only), plain
    source-over at full opacity. Then a look painted once into a transparent
    image and blitted gives the same pixels as painting it again, for every
    blend Qt does in whole pixels. Printing, PDF, SVG and scaled views draw
    directly.
*/
bool blitsExactly(const QPainter &painter);

/*!
    Switches the blitted images of the grid and the markers off (they draw
    directly again) or back on. For tests that compare both ways.
*/
UTILS_EXPORT void setPaintCachesEnabled(bool enabled);

/*!
    The part of \a image that is not fully transparent, copied, and its offset
    in \a image through \a offset; a null image when all of it is transparent.
    Blitting less costs less on every frame.
*/
QImage croppedToContent(const QImage &image, QPoint *offset);

} // namespace PlotCommon
} // namespace Utils

#endif // UTILS_PLOTCOMMON_P_H
