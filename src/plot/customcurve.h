// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CUSTOMCURVE_H
#define UTILS_CUSTOMCURVE_H

#include "utils_export.h"

#include <qwt_plot_curve.h>

#include <QBrush>
#include <QObject>
#include <QPen>

#include <memory>

namespace Utils {

/*!
    \brief The curve of a sample series: a QwtPlotCurve fed from raw arrays.

    The curve draws straight from the x and y arrays of a Utils::ValueOverTime
    (vUpdateData(), normally connected to the series' vDataUpdated() by
    Utils::CurveFactory); the arrays stay owned by the series and must outlive
    the curve's use of them. A new pair of pointers and a count only replace
    the curve's view of the arrays: nothing is copied or allocated per update.

    It draws what a plain QwtPlotCurve draws (antialiased lines, with the
    curve's pen, brush and baseline), but a replot does not walk samples that
    cannot be seen. While x is sorted (the series of a chart grows in time), the
    index range in view is found by binary search, widened by one sample on
    each side so that lines enter the canvas. Where more than four samples fall
    on one pixel column, the column is drawn from its first, minimum, maximum
    and last sample in their order, so no spike is lost and a break sentinel
    (a sample far below the scale, such as -1500.0) still takes the line off
    the canvas. Unsorted x, curve styles other than lines, symbols and fitted
    curves are drawn by QwtPlotCurve as they are.

    The interval pen, brush and range are stored for subclasses; this class
    does not draw them.

    \sa CurveFactory, ValueOverTime
*/
class UTILS_EXPORT CustomCurve : public QObject, public QwtPlotCurve
{
    Q_OBJECT

public:
    explicit CustomCurve(const QString &title = QString());
    ~CustomCurve() override;

    void vSetIntervalPen(const QPen &pen);
    void vSetIntervalBrush(const QBrush &brush);
    //! Stores an x interval, e.g. a time range a subclass highlights.
    void vSetInterval(const double &start, const double &end);
    QPen intervalPen() const;
    QBrush intervalBrush() const;
    double intervalStart() const;
    double intervalEnd() const;

    //! True while the arrays' x values were seen in ascending order (ties allowed).
    bool isSorted() const;

    /*!
        Draws samples \a from .. \a to (to < 0: up to the last), as
        QwtPlotCurve::drawSeries() does, limited to the visible index range and
        thinned per pixel column (see the class description).
    */
    void drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect,
                    int from, int to) const override;

public Q_SLOTS:
    /*!
        Shows \a count samples of the arrays \a x and \a y (QwtPlotCurve::setRawSamples()
        semantics, without a new data object per call). Does not replot.
    */
    void vUpdateData(const double *x, const double *y, int count);

private:
    Q_DISABLE_COPY(CustomCurve)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CUSTOMCURVE_H
