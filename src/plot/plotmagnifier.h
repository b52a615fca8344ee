// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTMAGNIFIER_H
#define UTILS_PLOTMAGNIFIER_H

#include "utils_export.h"

#include <qwt_plot_magnifier.h>

class QwtPlotCanvas;

namespace Utils {

/*!
    \brief Stand-alone wheel magnifier that keeps the time under the mouse in place.

    For plots built without the plot's tool set, such as a time line's overview.
    Zooming out is refused past the maximum span (default 365 days in ms) and
    outside the bound limits; zooming in below the minimum span. rezetZoom()
    returns to the distances seen at the first zoom, around the present cursor.
*/
class UTILS_EXPORT PlotMagnifier : public QwtPlotMagnifier
{
    Q_OBJECT

public:
    explicit PlotMagnifier(QwtPlotCanvas *canvas);
    ~PlotMagnifier() override;

    void rescale(double factor) override;
    bool rezetZoom();

    //! The QwtPlot::xBottom value under the mouse (ms since the epoch).
    double cursorValue() const;
    double minimumSpan() const;
    double maximumSpan() const;
    void setMaximumSpan(double span);
    double lowerLimit() const;
    double upperLimit() const;

public Q_SLOTS:
    //! Smallest span a zoom-in may reach; 0.0 means none.
    void vSetMinLimit(const double &span);
    //! Range a zoom-out must stay inside; equal bounds mean none. lower > upper is refused.
    void vSetMaxLimit(const double &lower, const double &upper);

Q_SIGNALS:
    void vScaleUpdated();

protected:
    void widgetMouseMoveEvent(QMouseEvent *event) override;

private:
    double m_dCursorValue = 0.0;
    double m_dInitialLeft = 0.0;
    double m_dInitialRight = 0.0;
    double m_dMinSpan = 0.0;
    double m_dMaxSpan = 3.1536e10;
    double m_dLowerLimit = 0.0;
    double m_dUpperLimit = 0.0;
};

} // namespace Utils

#endif // UTILS_PLOTMAGNIFIER_H
