// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTITEM_H
#define UTILS_CHARTITEM_H

#include "utils_export.h"
#include "core/observer.h"

#include <string>

namespace Utils {

/*!
    \brief An observable item on a chart that carries one named value the user can change.

    Observers attached to the item are told (update() with the item as subject) when
    the user has finished changing the value, e.g. at the end of a marker drag.
    Copies share nothing but the list of observers, which is copied.

    \sa PlotMarker, AbstractChartItemManager
*/
class UTILS_EXPORT ChartItem : public Observable
{
public:
    ChartItem() = default;
    ChartItem(const ChartItem &) = default;
    ChartItem &operator=(const ChartItem &) = default;
    virtual ~ChartItem();

    //! Does nothing by default: items without a name ignore it.
    virtual void setName(const std::string &name);
    //! The empty string by default.
    virtual std::string name() const;

    virtual void setValue(const double &value) = 0;
    virtual void setValueText(const std::string &text) = 0;
    virtual double value() const = 0;
    virtual std::string valueText() const = 0;
};

} // namespace Utils

#endif // UTILS_CHARTITEM_H
