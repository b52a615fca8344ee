// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotgrid_p.h"

#include "plot/plotcommon_p.h"

#include <qwt_math.h>
#include <qwt_painter.h>
#include <qwt_scale_map.h>

#include <QImage>
#include <QPainter>

#include <cmath>

namespace Utils {

namespace {

/*!
    One grid line stroked into an image, for a pen and the line's extent along
    its own direction (the canvas's top to bottom for a vertical line). The
    line is stroked at a whole-pixel position; a whole-pixel shift of a stroke
    shifts its pixels and nothing else, so the image blitted at another grid
    position gives the pixels a stroke there would.
*/
struct LineStamp
{
    QPen pen;
    QPainter::RenderHints hints;
    double from = 0.0;
    double to = 0.0;
    bool valid = false;
    QImage image; // only the pixels the stroke set; null when it set none
    QPoint offset; // of the image from the line's position, in the other direction at 0

    void prepare(const QPen &linePen, QPainter::RenderHints renderHints, Qt::Orientation orientation, double lineFrom,
        double lineTo)
    {
        if (valid && pen == linePen && hints == renderHints && from == lineFrom && to == lineTo)
            return;
        pen = linePen;
        hints = renderHints;
        from = lineFrom;
        to = lineTo;
        valid = true;
        // Room for the pen on both sides of the line and beyond its ends.
        const int margin = int(std::ceil(pen.widthF())) + 2;
        const int start = int(std::floor(std::min(from, to))) - margin;
        const int length = int(std::ceil(std::max(from, to))) + margin - start + 1;
        const int across = 2 * margin + 1;
        const bool vertical = orientation == Qt::Vertical;
        QImage full(vertical ? across : length, vertical ? length : across, QImage::Format_ARGB32_Premultiplied);
        full.fill(Qt::transparent);
        {
            QPainter painter(&full);
            painter.setRenderHints(hints);
            painter.setPen(pen);
            if (vertical)
                QwtPainter::drawLine(&painter, QPointF(margin, from - start), QPointF(margin, to - start));
            else
                QwtPainter::drawLine(&painter, QPointF(from - start, margin), QPointF(to - start, margin));
        }
        QPoint cropped;
        image = PlotCommon::croppedToContent(full, &cropped);
        offset = vertical ? QPoint(cropped.x() - margin, cropped.y() + start)
                          : QPoint(cropped.x() + start, cropped.y() - margin);
    }
};

} // namespace

/*!
    A grid pen with the flat cap QwtPlotGrid draws with, made again only when
    the pen changes: setting the cap on a copy would allocate at every replot.
*/
struct FlatPen
{
    bool made = false;
    QPen source;
    QPen flat;

    const QPen &of(const QPen &pen)
    {
        if (!made || pen != source) {
            made = true;
            source = pen;
            flat = pen;
            flat.setCapStyle(Qt::FlatCap);
        }
        return flat;
    }
};

struct PlotGrid::Private
{
    FlatPen minorPen;
    FlatPen majorPen;
    LineStamp minorVertical;
    LineStamp minorHorizontal;
    LineStamp majorVertical;
    LineStamp majorHorizontal;
};

PlotGrid::PlotGrid()
    : d(new Private)
{ }

PlotGrid::~PlotGrid() = default;

void PlotGrid::draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const
{
    // The stamps need grid positions on whole pixels, lines drawn without
    // antialiasing and pens of a few pixels; anything else is left to QwtPlotGrid.
    const double widest = 16.0;
    if (!PlotCommon::blitsExactly(*painter) || !QwtPainter::roundingAlignment(painter)
        || painter->testRenderHint(QPainter::Antialiasing) || minorPen().widthF() > widest
        || majorPen().widthF() > widest) {
        QwtPlotGrid::draw(painter, xMap, yMap, canvasRect);
        return;
    }

    // The same lines, pens and order as QwtPlotGrid::draw().
    const double x1 = canvasRect.left();
    const double x2 = canvasRect.right() - 1.0;
    const double y1 = canvasRect.top();
    const double y2 = canvasRect.bottom() - 1.0;
    const auto stampLines = [&](LineStamp &stamp, const QPen &pen, Qt::Orientation orientation, const QwtScaleMap &map,
                                const QList<double> &values) {
        if (values.isEmpty())
            return;
        const bool vertical = orientation == Qt::Vertical;
        stamp.prepare(pen, painter->renderHints(), orientation, vertical ? y1 : x1, vertical ? y2 : x2);
        if (stamp.image.isNull())
            return;
        const double low = vertical ? x1 : y1;
        const double high = vertical ? x2 : y2;
        for (double value : values) {
            const double position = map.transform(value);
            // Far off the canvas (and beyond an int): not drawn either way.
            if (!(std::fabs(position) < 1.0e9))
                continue;
            const double pixel = qRound(position);
            if (!qwtFuzzyGreaterOrEqual(pixel, low) || !qwtFuzzyLessOrEqual(pixel, high))
                continue;
            const QPoint at = vertical ? QPoint(int(pixel), 0) : QPoint(0, int(pixel));
            painter->drawImage(at + stamp.offset, stamp.image);
        }
    };

    const QPen &minorPen = d->minorPen.of(this->minorPen());
    if (xEnabled() && xMinEnabled()) {
        stampLines(d->minorVertical, minorPen, Qt::Vertical, xMap, xScaleDiv().ticks(QwtScaleDiv::MinorTick));
        stampLines(d->minorVertical, minorPen, Qt::Vertical, xMap, xScaleDiv().ticks(QwtScaleDiv::MediumTick));
    }
    if (yEnabled() && yMinEnabled()) {
        stampLines(d->minorHorizontal, minorPen, Qt::Horizontal, yMap, yScaleDiv().ticks(QwtScaleDiv::MinorTick));
        stampLines(d->minorHorizontal, minorPen, Qt::Horizontal, yMap, yScaleDiv().ticks(QwtScaleDiv::MediumTick));
    }
    const QPen &majorPen = d->majorPen.of(this->majorPen());
    if (xEnabled())
        stampLines(d->majorVertical, majorPen, Qt::Vertical, xMap, xScaleDiv().ticks(QwtScaleDiv::MajorTick));
    if (yEnabled())
        stampLines(d->majorHorizontal, majorPen, Qt::Horizontal, yMap, yScaleDiv().ticks(QwtScaleDiv::MajorTick));
}

} // namespace Utils
