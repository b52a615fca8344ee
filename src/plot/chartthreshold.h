// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTTHRESHOLD_H
#define UTILS_CHARTTHRESHOLD_H

#include "utils_export.h"
#include "plot/chartitem.h"

#include <QWidget>

class QwtPlot;

namespace Utils {

/*!
    \brief The widget form of a chart item, for threshold drawings on a plot.

    A child of the plot; it adds nothing to its two bases, subclasses implement
    the value operations.
*/
class UTILS_EXPORT ChartThreshold : public QWidget, public ChartItem
{
    Q_OBJECT

public:
    explicit ChartThreshold(QwtPlot *plot);
    ~ChartThreshold() override;
};

} // namespace Utils

#endif // UTILS_CHARTTHRESHOLD_H
