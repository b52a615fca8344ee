// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/abstractchartitemmanager.h"

namespace Utils {

AbstractChartItemManager::AbstractChartItemManager(QObject *parent)
    : QObject(parent)
{
}

AbstractChartItemManager::~AbstractChartItemManager() = default;

} // namespace Utils
