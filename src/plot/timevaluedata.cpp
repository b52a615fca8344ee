// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/timevaluedata.h"

namespace Utils {

TimeValueData::TimeValueData()
    : m_oStartTime(QDateTime::currentDateTime())
{
}

} // namespace Utils
