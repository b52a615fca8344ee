// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/axisscaleengine.h"

#include <qwt_interval.h>

#include <cmath>

namespace Utils {

AxisScaleEngine::AxisScaleEngine(uint base)
    : QwtLinearScaleEngine(base)
{
}

AxisScaleEngine::~AxisScaleEngine() = default;

QwtScaleDiv AxisScaleEngine::divideScale(double x1, double x2, int maxMajorSteps, int maxMinorSteps,
                                         double stepSize) const
{
    // Qwt's tick loops never end for bounds or steps that are not numbers.
    if (!std::isfinite(x1) || !std::isfinite(x2))
        return QwtScaleDiv();
    if (!std::isfinite(stepSize))
        stepSize = 0.0;
    const QwtInterval interval = QwtInterval(x1, x2).normalized();
    QwtScaleDiv div = QwtLinearScaleEngine::divideScale(interval.minValue(), interval.maxValue(), maxMajorSteps,
                                                        maxMinorSteps, stepSize);
    if (x1 > x2)
        div.invert();
    return div;
}

} // namespace Utils
