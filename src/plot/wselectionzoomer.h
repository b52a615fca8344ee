// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_WSELECTIONZOOMER_H
#define UTILS_WSELECTIONZOOMER_H

#include "utils_export.h"

#include <qwt_plot_zoomer.h>

namespace Utils {

/*!
    \brief Rubber-band zoomer of the plot canvas with value-axis rules.

    A rubber band not taller than the minimum selection height (yLeft units,
    default 1.0) is ignored. A shown yRight axis is zoomed in proportion. Below a
    value span of 4.0 the yLeft ticks follow the quieter step rule.

    zoom(int) deliberately does not move in the zoom stack: the undo (Shift+O),
    redo (Shift+I) and home (Home) keys only re-apply the time-axis tick step,
    one major tick per 115 pixels of plot width.

    \sa Plot, WPlotPanner
*/
class UTILS_EXPORT WSelectionZoomer : public QwtPlotZoomer
{
    Q_OBJECT

public:
    explicit WSelectionZoomer(QWidget *canvas);
    ~WSelectionZoomer() override;

    void zoom(const QRectF &rect) override;
    void zoom(int offset) override;

    //! Kept equal to the yLeft upper bound by Plot::setAxisScale().
    void setUpperValueBound(double bound);
    double upperValueBound() const;

    //! Mirror of the plot's enabled state; a disabled zoomer ignores zoom requests.
    void setEnabled(bool enabled);
    bool isEnabled() const;

    void setMinimumSelectionHeight(double height);
    double minimumSelectionHeight() const;

    void vZoomWithIntVal(bool integerValues);
    bool zoomWithIntVal() const;

private:
    double m_dUpperValueBound = 0.0;
    bool m_bEnabled = true;
    double m_dMinSelectionHeight = 1.0;
    bool m_bZoomWithIntVal = false;
};

} // namespace Utils

#endif // UTILS_WSELECTIONZOOMER_H
