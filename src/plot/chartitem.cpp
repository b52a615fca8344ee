// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/chartitem.h"

namespace Utils {

ChartItem::~ChartItem() = default;

void ChartItem::setName(const std::string &)
{
}

std::string ChartItem::name() const
{
    return std::string();
}

} // namespace Utils
