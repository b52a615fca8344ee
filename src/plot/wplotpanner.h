// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_WPLOTPANNER_H
#define UTILS_WPLOTPANNER_H

#include "utils_export.h"

#include <qwt_plot_panner.h>

namespace Utils {

/*!
    \brief Vertical panning of the value axis, held inside [lower, upper] pan limits.

    A pan that would show a yLeft value above the upper limit or below the lower
    limit is shortened to stop at it. Below a value span of 4.0 the ticks follow
    the quieter step rule after each pan.
*/
class UTILS_EXPORT WPlotPanner : public QwtPlotPanner
{
    Q_OBJECT

public:
    explicit WPlotPanner(QWidget *canvas);
    ~WPlotPanner() override;

    void moveCanvas(int dx, int dy) override;

    void setLowerPanLimit(double limit);
    double lowerPanLimit() const;
    void setUpperPanLimit(double limit);
    double upperPanLimit() const;

    //! Mirror of the plot's enabled state; a disabled panner does not move the canvas.
    void setEnabled(bool enabled);
    bool isEnabled() const;

private:
    double m_dLowerLimit = 0.0;
    double m_dUpperLimit = 0.0;
    bool m_bEnabled = true;
};

} // namespace Utils

#endif // UTILS_WPLOTPANNER_H
