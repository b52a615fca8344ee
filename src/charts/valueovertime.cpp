// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/valueovertime.h"

#include <QDateTime>

#include <algorithm>
#include <vector>

namespace Utils {

// Both arrays always have the same length. std::vector grows geometrically and
// keeps its capacity on erase and clear, which is what makes trimming and
// refilling a long series free of allocations.
struct ValueOverTime::Private
{
    std::vector<double> x;
    std::vector<double> y;
};

ValueOverTime::ValueOverTime()
    : d(new Private)
{ }

ValueOverTime::ValueOverTime(const ValueOverTime &other)
    : QObject()
    , d(new Private(*other.d))
{ }

ValueOverTime &ValueOverTime::operator=(const ValueOverTime &other)
{
    if (this == &other)
        return *this;
    d->x = other.d->x;
    d->y = other.d->y;
    // The copy may have moved the arrays; a curve must not keep the old ones.
    vNotify();
    return *this;
}

ValueOverTime::~ValueOverTime() = default;

void ValueOverTime::vAppend(const double &value, const double &time)
{
    if (!d->x.empty() && time == d->x.back() && value == d->y.back())
        return;
    d->y.push_back(value);
    if (time == 0.0)
        d->x.push_back(double(QDateTime::currentMSecsSinceEpoch()));
    else
        d->x.push_back(time);
    vNotify();
}

void ValueOverTime::vRemove(const int &index)
{
    if (index < 0 || index >= size())
        return;
    d->x.erase(d->x.begin() + index);
    d->y.erase(d->y.begin() + index);
    vNotify();
}

void ValueOverTime::vReplace(const int &index, const double &value, const double &time)
{
    if (index < 0 || index >= size())
        return;
    d->x[size_t(index)] = time;
    d->y[size_t(index)] = value;
    vNotify();
}

void ValueOverTime::vEraseFirstValues(int n)
{
    if (n <= 0 || n > size())
        return;
    d->x.erase(d->x.begin(), d->x.begin() + n);
    d->y.erase(d->y.begin(), d->y.begin() + n);
}

void ValueOverTime::vClear()
{
    if (d->x.empty())
        return;
    d->x.clear();
    d->y.clear();
    vNotify();
}

void ValueOverTime::reserve(int count)
{
    if (count <= capacity())
        return;
    const double *oldX = d->x.data();
    d->x.reserve(size_t(count));
    d->y.reserve(size_t(count));
    if (!d->x.empty() && d->x.data() != oldX)
        vNotify();
}

int ValueOverTime::size() const
{
    return int(d->x.size());
}

int ValueOverTime::capacity() const
{
    return int(std::min(d->x.capacity(), d->y.capacity()));
}

const double *ValueOverTime::pxData() const
{
    return d->x.empty() ? nullptr : d->x.data();
}

const double *ValueOverTime::pyData() const
{
    return d->y.empty() ? nullptr : d->y.data();
}

QPointF ValueOverTime::oFirst() const
{
    return d->x.empty() ? QPointF() : QPointF(d->x.front(), d->y.front());
}

QPointF ValueOverTime::oLast() const
{
    return d->x.empty() ? QPointF() : QPointF(d->x.back(), d->y.back());
}

double ValueOverTime::s64Range() const
{
    return d->x.empty() ? 0.0 : d->x.back() - d->x.front();
}

void ValueOverTime::vNotify()
{
    Q_EMIT vDataUpdated(pxData(), pyData(), size());
}

} // namespace Utils
