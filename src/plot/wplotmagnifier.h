// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_WPLOTMAGNIFIER_H
#define UTILS_WPLOTMAGNIFIER_H

#include "utils_export.h"

#include <qwt_plot_magnifier.h>

namespace Utils {

/*!
    \brief Wheel zoom of the value axes, held between a minimum zoom level and a maximum range.

    A zoom-in (factor < 1) is refused once the yLeft span is at or below the
    minimum zoom level; a zoom-out (factor > 1) once it is at or above the maximum
    Y range. On an inverted yLeft axis the yRight span is considered when yRight is
    shown, with a fixed zoom-out limit of 20.0. After each accepted step
    PlotZoomed() asks the plot for its centre zoom.
*/
class UTILS_EXPORT WPlotMagnifier : public QwtPlotMagnifier
{
    Q_OBJECT

public:
    explicit WPlotMagnifier(QWidget *canvas);
    ~WPlotMagnifier() override;

    void rescale(double factor) override;

    void setMaxYRange(double range);
    double getMaxYRange() const;
    void setMinYRange(double range);
    double getMinYRange() const;
    void setMinYRightRange(double range);
    double getMinYRightRange() const;
    void setMaxYRightRange(double range);
    double getMaxYRightRange() const;
    void SetMinimumZoomLevel(double level);
    double minimumZoomLevel() const;

    //! Mirror of the plot's enabled state; a disabled magnifier ignores rescale().
    void setEnabled(bool enabled);
    bool isEnabled() const;

Q_SIGNALS:
    void PlotScrollMagnified(double factor);
    void PlotZoomed();
    void plotZoomedReset();

private:
    double m_dMaxYRange = 0.0;
    double m_dMinYRange = 0.0;
    double m_dMinYRightRange = 0.0;
    double m_dMaxYRightRange = 0.0;
    double m_dMinZoomLevel = 5.0;
    bool m_bEnabled = true;
};

/*!
    \brief Wheel zoom of the time axis, held between a minimum zoom level and a maximum range.

    Only QwtPlot::xBottom is magnified.
*/
class UTILS_EXPORT WPlotMagnifierXAxis : public QwtPlotMagnifier
{
    Q_OBJECT

public:
    explicit WPlotMagnifierXAxis(QWidget *canvas);
    ~WPlotMagnifierXAxis() override;

    void rescale(double factor) override;

    void setMaxXRange(double range);
    double getMaxXRange() const;
    void setMinXRange(double range);
    double getMinXRange() const;
    void SetMinimumZoomLevel(double level);
    double minimumZoomLevel() const;

    void setEnabled(bool enabled);
    bool isEnabled() const;

Q_SIGNALS:
    void PlotScrollMagnified(double factor);
    void PlotZoomed();
    void plotZoomedReset();

private:
    double m_dMaxXRange = 0.0;
    double m_dMinXRange = 0.0;
    double m_dMinZoomLevel = 5.0;
    bool m_bEnabled = true;
};

} // namespace Utils

#endif // UTILS_WPLOTMAGNIFIER_H
