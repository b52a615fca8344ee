// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdsmultidata.h"

#include "thresholdsstring_p.h"

#include <QVector>

namespace Utils {

namespace {

struct Entry
{
    double low = 0.0;
    double high = 0.0;
    double middle = 0.0;
    double middle1 = 0.0;
    quint32 constant = 0;
    qint32 noise = 0;
    bool hasWindow = false;
};

} // namespace

struct ThresholdsMultiData::Private
{
    // Copy-on-write list; it detaches before every write through operator[].
    QVector<Entry> entries;

    bool valid(int index) const { return index >= 0 && index < entries.size(); }
};

ThresholdsMultiData::ThresholdsMultiData(int count)
    : d(std::make_shared<Private>())
{
    if (count > 0)
        d->entries.resize(count);
}

// Shallow on purpose: both records share one value block; observers stay behind.
ThresholdsMultiData::ThresholdsMultiData(const ThresholdsMultiData &other)
    : Observable()
    , d(other.d)
{
}

ThresholdsMultiData &ThresholdsMultiData::operator=(const ThresholdsMultiData &other)
{
    d = other.d;
    return *this;
}

ThresholdsMultiData::~ThresholdsMultiData() = default;

void ThresholdsMultiData::setLow(int index, const double &value)
{
    if (!d->valid(index))
        return;
    d->entries[index].low = value;
    notify();
}

void ThresholdsMultiData::setHigh(int index, const double &value)
{
    if (!d->valid(index))
        return;
    d->entries[index].high = value;
    notify();
}

void ThresholdsMultiData::setMiddle(int index, const double &value)
{
    if (!d->valid(index))
        return;
    d->entries[index].middle = value;
    notify();
}

void ThresholdsMultiData::setMiddle1(int index, const double &value)
{
    if (!d->valid(index))
        return;
    d->entries[index].middle1 = value;
    notify();
}

void ThresholdsMultiData::setNoise(int index, const int &noise)
{
    if (!d->valid(index))
        return;
    d->entries[index].noise = noise;
    notify();
}

void ThresholdsMultiData::setThresholdConstant(int index, unsigned int constant)
{
    if (d->valid(index))
        d->entries[index].constant = constant;
}

void ThresholdsMultiData::setHasWindow(int index, bool hasWindow)
{
    if (d->valid(index))
        d->entries[index].hasWindow = hasWindow;
}

double ThresholdsMultiData::low(int index) const
{
    return d->valid(index) ? d->entries.at(index).low : -1.0;
}

double ThresholdsMultiData::high(int index) const
{
    return d->valid(index) ? d->entries.at(index).high : -1.0;
}

double ThresholdsMultiData::midle(int index) const
{
    return d->valid(index) ? d->entries.at(index).middle : -1.0;
}

double ThresholdsMultiData::midle1(int index) const
{
    return d->valid(index) ? d->entries.at(index).middle1 : -1.0;
}

int ThresholdsMultiData::noise(int index) const
{
    return d->valid(index) ? d->entries.at(index).noise : -1;
}

bool ThresholdsMultiData::hasWindow(int index) const
{
    return d->valid(index) && d->entries.at(index).hasWindow;
}

void ThresholdsMultiData::setFromValues(int index, double a, double b, double c, double d4)
{
    Q_UNUSED(d4)
    if (!d->valid(index))
        return;
    Entry &entry = d->entries[index];
    const double k = entry.constant;
    double high = b - k;
    if (high < 0.0)
        high = 0.0;
    double low = c - k;
    // -1.0 marks an entry that has neither a low nor a high value.
    if (low < 0.0)
        low = high > 0.0 ? 0.0 : -1.0;
    entry.high = high;
    entry.low = low;
    entry.noise = ThresholdsString::truncated(a - b);
    ThresholdsString::logPair("ThresholdsMultiData", low, high);
    notify();
}

std::string ThresholdsMultiData::toHexString(int index) const
{
    if (!d->valid(index))
        return std::string();
    const Entry &entry = d->entries.at(index);
    const std::int64_t k = entry.constant;
    const std::int64_t n = entry.noise;
    const std::int64_t high = ThresholdsString::truncated(entry.high);
    const std::int64_t low = ThresholdsString::truncated(entry.low);
    std::int64_t last = k - n + low;
    if (last < 0)
        last = 0;
    return ThresholdsString::fourWords(k + n + high, k + high, k + low, last);
}

} // namespace Utils
