// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/chartthreshold.h"

#include <qwt_plot.h>

namespace Utils {

ChartThreshold::ChartThreshold(QwtPlot *plot)
    : QWidget(plot)
{
}

ChartThreshold::~ChartThreshold() = default;

} // namespace Utils
