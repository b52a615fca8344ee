// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTTHRESHOLDMANAGER_H
#define UTILS_CHARTTHRESHOLDMANAGER_H

#include "utils_export.h"
#include "plot/abstractchartitemmanager.h"

#include <memory>

class QwtPlot;

namespace Utils {

/*!
    \brief Manager of threshold lines: each item is a draggable PlotMarker on one plot.

    The manager owns its items and observes them; itemChanged() is emitted only
    when a user drag ends, never for values set through setItemValue().
*/
class UTILS_EXPORT ChartThresholdManager : public AbstractChartItemManager
{
    Q_OBJECT

public:
    explicit ChartThresholdManager(QwtPlot *plot);
    ~ChartThresholdManager() override;

    //! Creates a hidden marker (mode 1) under \a name; null for an empty name.
    ChartItem *addItem(const std::string &name) override;
    //! The item stored under \a name, or null.
    ChartItem *item(const std::string &name) const;
    void removeItem(const std::string &name) override;
    void setItemValue(const std::string &name, const double &value) override;
    //! Sets the drag bounds of the marker stored under \a name.
    void setItemRange(const std::string &name, const double &lower, const double &upper);

    void setAllowOverlapping(bool allow);
    bool allowOverlapping() const;

    void update(void *subject) override;

private:
    Q_DISABLE_COPY(ChartThresholdManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CHARTTHRESHOLDMANAGER_H
