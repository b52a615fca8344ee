// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTPLOTTER_H
#define UTILS_CHARTPLOTTER_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

class QwtPlotMarker;
class QwtPlotZoomer;

namespace Utils {

class CurveFactory;
class Plot;

/*!
    \brief A ready-made chart: a Utils::Plot with a legend on top, a value
    read-out, minimum and maximum lines, and a curve factory.

    Curves come from poCurveFactory()->poAttachData(series): each series of
    samples (Utils::ValueOverTime) gets one curve, drawn with the chart's blue
    pen and a light gradient, that follows the series as it grows. The value
    axis starts at 0 to 255. Besides the plot's own tools, a right click steps
    one zoom back, Ctrl + right click returns to the zoom base, and a middle
    drag pans (also the right axis).

    \sa CurveFactory, Plot
*/
class UTILS_EXPORT ChartPlotter : public QWidget
{
    Q_OBJECT

public:
    explicit ChartPlotter(QWidget *parent = nullptr);
    ~ChartPlotter() override;

    CurveFactory *poCurveFactory() const;
    Plot *poPlot() const;
    QwtPlotMarker *poValueMarker() const;
    QwtPlotMarker *poMinMarker() const;
    QwtPlotMarker *poMaxMarker() const;

    void vSetTitle(const QString &title);
    //! Shows \a value with three significant digits ("%.3g") near the top of the default scale.
    void setCurrentValue(double value);
    //! A dotted line at \a value labelled "Min <value>".
    void vSetMinMarker(double value);
    //! A dotted line at \a value labelled "Max <value>".
    void vSetMaxMarker(double value);
    //! The yLeft scale (step 0: automatic); the zoomer takes it as its base.
    void setUpYScale(double min, double max, double step);

private Q_SLOTS:
    //! The context menu request; the chart offers no menu of its own.
    void vPopUpMenu(const QPoint &pos);
    //! Shows \a from .. \a to on the time axis, with an automatic step.
    void vSetWindowViewRange(const double &from, const double &to);
    //! Prints the plot after a print dialog (creator "Bode example").
    void vPrintDocument();
    //! Exports the plot to PDF, SVG, PostScript or an image after a file dialog.
    void vExportDocument();

private:
    void vInitMembers();

    Q_DISABLE_COPY(ChartPlotter)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CHARTPLOTTER_H
