// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_AXISSCALEENGINE_H
#define UTILS_AXISSCALEENGINE_H

#include "utils_export.h"

#include <qwt_scale_engine.h>

namespace Utils {

/*!
    \brief Linear engine of the value axis.

    Divides the normalised interval and turns the division round again for an
    inverted interval, so that a value axis shown upside down keeps its ticks.
*/
class UTILS_EXPORT AxisScaleEngine : public QwtLinearScaleEngine
{
public:
    explicit AxisScaleEngine(uint base = 10);
    ~AxisScaleEngine() override;

    QwtScaleDiv divideScale(double x1, double x2, int maxMajorSteps, int maxMinorSteps,
                            double stepSize = 0.0) const override;
};

} // namespace Utils

#endif // UTILS_AXISSCALEENGINE_H
