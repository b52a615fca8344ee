// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholddatamanager.h"

#include "managedrecords_p.h"

namespace Utils {

namespace {
// The sensor transmits values around this zero point.
constexpr int DefaultOffset = 32768;
} // namespace

struct ThresholdDataManager::Private
{
    qint32 outputs = 0;
    ManagedRecords<ThresholdsData> records;
};

ThresholdDataManager::ThresholdDataManager()
    : QObject(nullptr)
    , d(std::make_unique<Private>())
{
}

ThresholdDataManager::~ThresholdDataManager()
{
    clearDataVector();
}

void ThresholdDataManager::setOutputs(int count)
{
    d->outputs = count;
    if (d->records.size() > 0)
        clearDataVector();
    for (int i = 0; i < count; ++i) {
        auto *record = new ThresholdsData();
        for (int c = ThresholdsData::Hue; c <= ThresholdsData::Extra3; ++c)
            record->setThresholdConstant(static_cast<ThresholdsData::Component>(c), DefaultOffset);
        d->records.append(record, this);
    }
}

int ThresholdDataManager::outputs() const
{
    return d->outputs;
}

void ThresholdDataManager::clearDataVector()
{
    d->records.clear(this);
}

void ThresholdDataManager::setLow(unsigned int output, ThresholdsData::Component component, const double &value,
                                  bool noUpperLimit, bool allowNegative)
{
    if (ThresholdsData *record = d->records.output(output))
        record->setLow(component, value, noUpperLimit, allowNegative);
}

void ThresholdDataManager::setHigh(unsigned int output, ThresholdsData::Component component, const double &value,
                                   bool noUpperLimit, bool allowNegative)
{
    if (ThresholdsData *record = d->records.output(output))
        record->setHigh(component, value, noUpperLimit, allowNegative);
}

void ThresholdDataManager::setNoise(unsigned int output, ThresholdsData::Component component, const int &noise)
{
    if (ThresholdsData *record = d->records.output(output))
        record->setNoise(component, noise);
}

void ThresholdDataManager::setFromHexString(unsigned int output, ThresholdsData::Component component,
                                            const std::string &text)
{
    if (ThresholdsData *record = d->records.output(output))
        record->setFromHexString(component, text);
}

double ThresholdDataManager::low(unsigned int output, ThresholdsData::Component component) const
{
    const ThresholdsData *record = d->records.output(output);
    return record ? record->low(component) : -1.0;
}

double ThresholdDataManager::high(unsigned int output, ThresholdsData::Component component) const
{
    const ThresholdsData *record = d->records.output(output);
    return record ? record->high(component) : -1.0;
}

int ThresholdDataManager::noise(unsigned int output, ThresholdsData::Component component) const
{
    const ThresholdsData *record = d->records.output(output);
    return record ? record->noise(component) : -1;
}

std::string ThresholdDataManager::toHexString(unsigned int output, ThresholdsData::Component component) const
{
    const ThresholdsData *record = d->records.output(output);
    return record ? record->toHexString(component) : std::string();
}

void ThresholdDataManager::update(void *source)
{
    d->records.forEachPosition(source, [this](unsigned int position) { Q_EMIT emitOutputUpdated(position); });
}

} // namespace Utils
