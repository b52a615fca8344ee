// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTGRID_P_H
#define UTILS_PLOTGRID_P_H

// Internal to the plot: not installed.

#include <qwt_plot_grid.h>

#include <memory>

namespace Utils {

/*!
    The grid of Utils::Plot. It draws what QwtPlotGrid draws, pixel for pixel,
    but on a raster device it strokes one line of each kind (vertical or
    horizontal, major or minor pen) once into an image and blits that image at
    every grid position. Qt strokes the dotted grid pen pixel by pixel; with the
    minor x lines of the plot's look that came to some 30 lines per replot of a
    moving time axis, more than the curve itself. Other devices (printing, PDF,
    SVG, scaled painters) get QwtPlotGrid's own drawing.
*/
class PlotGrid : public QwtPlotGrid
{
public:
    PlotGrid();
    ~PlotGrid() override;

    void draw(
        QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
    struct Private;
    std::unique_ptr<Private> d;

    Q_DISABLE_COPY(PlotGrid)
};

} // namespace Utils

#endif // UTILS_PLOTGRID_P_H
