// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdmultimanager.h"

#include "managedrecords_p.h"
#include "thresholdsmultidata.h"

namespace Utils {

namespace {
// The sensor transmits values around this zero point.
constexpr unsigned int DefaultOffset = 32768;
} // namespace

struct ThresholdMultiManager::Private
{
    qint32 outputs = 0;
    ManagedRecords<ThresholdsMultiData> records;
    qint32 componentCount = 0;
};

ThresholdMultiManager::ThresholdMultiManager(int componentCount)
    : QObject(nullptr)
    , d(std::make_unique<Private>())
{
    d->componentCount = componentCount;
}

ThresholdMultiManager::~ThresholdMultiManager()
{
    clearDataVector();
}

void ThresholdMultiManager::setOutputs(int count)
{
    d->outputs = count;
    if (d->records.size() > 0)
        clearDataVector();
    for (int i = 0; i < count; ++i) {
        auto *record = new ThresholdsMultiData(d->componentCount);
        for (int entry = 0; entry < d->componentCount; ++entry)
            record->setThresholdConstant(entry, DefaultOffset);
        d->records.append(record, this);
    }
}

int ThresholdMultiManager::outputs() const
{
    return d->outputs;
}

void ThresholdMultiManager::addComponent()
{
    ++d->componentCount;
}

int ThresholdMultiManager::getComponentCount() const
{
    return d->componentCount;
}

void ThresholdMultiManager::clearDataVector()
{
    d->records.clear(this);
}

void ThresholdMultiManager::setLow(unsigned int output, int index, const double &value)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setLow(index, value);
}

void ThresholdMultiManager::setHigh(unsigned int output, int index, const double &value)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setHigh(index, value);
}

void ThresholdMultiManager::setMiddle(unsigned int output, int index, const double &value)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setMiddle(index, value);
}

void ThresholdMultiManager::setNoise(unsigned int output, int index, const int &noise)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setNoise(index, noise);
}

void ThresholdMultiManager::setFromValues(unsigned int output, int index, unsigned int a, unsigned int b,
                                          unsigned int c, unsigned int dWord)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setFromValues(index, double(a), double(b), double(c), double(dWord));
}

double ThresholdMultiManager::low(unsigned int output, int index) const
{
    const ThresholdsMultiData *record = d->records.output(output);
    return record ? record->low(index) : -1.0;
}

double ThresholdMultiManager::high(unsigned int output, int index) const
{
    const ThresholdsMultiData *record = d->records.output(output);
    return record ? record->high(index) : -1.0;
}

int ThresholdMultiManager::noise(unsigned int output, int index) const
{
    const ThresholdsMultiData *record = d->records.output(output);
    return record ? record->noise(index) : -1;
}

std::string ThresholdMultiManager::toHexString(unsigned int output, int index) const
{
    const ThresholdsMultiData *record = d->records.output(output);
    return record ? record->toHexString(index) : std::string();
}

// The three operations below take signed output numbers; an output outside
// 1..outputs is ignored rather than indexing outside the records.
void ThresholdMultiManager::setThresholdConstant(int output, int index, int value)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setThresholdConstant(index, static_cast<unsigned int>(value));
}

void ThresholdMultiManager::setHasWindows(int output, int index, bool hasWindow)
{
    if (ThresholdsMultiData *record = d->records.output(output))
        record->setHasWindow(index, hasWindow);
}

bool ThresholdMultiManager::hasWindows(int output, int index) const
{
    const ThresholdsMultiData *record = d->records.output(output);
    return record && record->hasWindow(index);
}

void ThresholdMultiManager::update(void *source)
{
    d->records.forEachPosition(source, [this](unsigned int position) { Q_EMIT emitOutputUpdated(position); });
}

} // namespace Utils
