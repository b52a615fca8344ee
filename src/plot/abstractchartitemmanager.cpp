// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/abstractchartitemmanager.h"

#include "plot/chartitem.h"

namespace Utils {

AbstractChartItemManager::AbstractChartItemManager(QObject *parent)
    : QObject(parent)
{
    // For queued connections and spies of itemChanged().
    static const int itemType = qRegisterMetaType<Utils::ChartItem *>("Utils::ChartItem*");
    static const int nameType = qRegisterMetaType<std::string>("std::string");
    Q_UNUSED(itemType)
    Q_UNUSED(nameType)
}

AbstractChartItemManager::~AbstractChartItemManager() = default;

} // namespace Utils
