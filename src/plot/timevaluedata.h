// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TIMEVALUEDATA_H
#define UTILS_TIMEVALUEDATA_H

#include "utils_export.h"

#include <QDateTime>
#include <QMetaType>
#include <QPointF>
#include <QVector>

namespace Utils {

/*!
    \brief A small container of samples with the time they start from.

    Each sample is (x, y) = (milliseconds after oStartTime(), value). The start
    time is the current date and time at construction. Copies copy both.
*/
class UTILS_EXPORT TimeValueData
{
public:
    TimeValueData();

    void vSetStartTime(const QDateTime &start) { m_oStartTime = start; }
    QDateTime oStartTime() const { return m_oStartTime; }

    QVector<QPointF> &samples() { return m_oSamples; }
    const QVector<QPointF> &samples() const { return m_oSamples; }

private:
    QVector<QPointF> m_oSamples;
    QDateTime m_oStartTime;
};

} // namespace Utils

Q_DECLARE_METATYPE(Utils::TimeValueData)

#endif // UTILS_TIMEVALUEDATA_H
