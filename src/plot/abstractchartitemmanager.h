// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ABSTRACTCHARTITEMMANAGER_H
#define UTILS_ABSTRACTCHARTITEMMANAGER_H

#include "utils_export.h"
#include "core/observer.h"

#include <QObject>

#include <string>

namespace Utils {

class ChartItem;

/*!
    \brief Owns chart items by name, observes them and turns their changes into signals.

    Subclasses create the items; update() is called by an item when the user has
    finished changing it and emits both forms of itemChanged().
*/
class UTILS_EXPORT AbstractChartItemManager : public QObject, public Observer
{
    Q_OBJECT

public:
    explicit AbstractChartItemManager(QObject *parent = nullptr);
    ~AbstractChartItemManager() override;

    virtual ChartItem *addItem(const std::string &name) = 0;
    virtual void removeItem(const std::string &name) = 0;
    virtual void setItemValue(const std::string &name, const double &value) = 0;
    void update(void *subject) override = 0;

Q_SIGNALS:
    void itemChanged(Utils::ChartItem *item, double value);
    void itemChanged(std::string name, double value);
};

} // namespace Utils

#endif // UTILS_ABSTRACTCHARTITEMMANAGER_H
