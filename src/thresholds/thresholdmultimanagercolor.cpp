// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdmultimanagercolor.h"

#include "managedrecords_p.h"
#include "thresholdsmultidatacolor.h"

namespace Utils {

namespace {
// The sensor transmits values around this zero point.
constexpr unsigned int DefaultOffset = 32768;

using ColourSetter = void (ThresholdsMultiDataColor::*)(int, const double &);
} // namespace

struct ThresholdMultiManagerColor::Private
{
    qint32 outputs = 0;
    ManagedRecords<ThresholdsMultiDataColor> records;
    qint32 componentCount = 0;

    void set(unsigned int output, int index, const double &value, ColourSetter setter)
    {
        if (ThresholdsMultiDataColor *record = records.output(output))
            (record->*setter)(index, value);
    }
};

ThresholdMultiManagerColor::ThresholdMultiManagerColor(int componentCount)
    : QObject(nullptr)
    , d(std::make_unique<Private>())
{
    d->componentCount = componentCount;
}

ThresholdMultiManagerColor::~ThresholdMultiManagerColor()
{
    clearDataVector();
}

void ThresholdMultiManagerColor::setOutputs(int count)
{
    d->outputs = count;
    if (d->records.size() > 0)
        clearDataVector();
    for (int i = 0; i < count; ++i) {
        auto *record = new ThresholdsMultiDataColor(d->componentCount);
        for (int entry = 0; entry < d->componentCount; ++entry)
            record->setThresholdConstant(entry, DefaultOffset);
        d->records.append(record, this);
    }
}

int ThresholdMultiManagerColor::outputs() const
{
    return d->outputs;
}

void ThresholdMultiManagerColor::addComponent()
{
    ++d->componentCount;
}

int ThresholdMultiManagerColor::getComponentCount() const
{
    return d->componentCount;
}

void ThresholdMultiManagerColor::clearDataVector()
{
    d->records.clear(this);
}

void ThresholdMultiManagerColor::setNoise(unsigned int output, int index, const int &noise)
{
    if (ThresholdsMultiDataColor *record = d->records.output(output))
        record->setNoise(index, noise);
}

int ThresholdMultiManagerColor::noise(unsigned int output, int index) const
{
    const ThresholdsMultiDataColor *record = d->records.output(output);
    return record ? record->noise(index) : -1;
}

void ThresholdMultiManagerColor::setColorRed(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorRed);
}

void ThresholdMultiManagerColor::setColorGreen(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorGreen);
}

void ThresholdMultiManagerColor::setColorBlue(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorBlue);
}

void ThresholdMultiManagerColor::setColorLight(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorLight);
}

void ThresholdMultiManagerColor::setColorRedHigh(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorRedHigh);
}

void ThresholdMultiManagerColor::setColorRedLow(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorRedLow);
}

void ThresholdMultiManagerColor::setColorGreenHigh(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorGreenHigh);
}

void ThresholdMultiManagerColor::setColorGreenLow(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorGreenLow);
}

void ThresholdMultiManagerColor::setColorBlueHighh(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorBlueHigh);
}

void ThresholdMultiManagerColor::setColorBlueLow(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorBlueLow);
}

void ThresholdMultiManagerColor::setColorLightHigh(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorLightHigh);
}

void ThresholdMultiManagerColor::setColorLightLow(unsigned int output, int index, const double &value)
{
    d->set(output, index, value, &ThresholdsMultiDataColor::setColorLightLow);
}

// Signed output numbers: an output outside 1..outputs is ignored rather than
// indexing outside the records.
void ThresholdMultiManagerColor::setThresholdConstant(int output, int index, int value)
{
    if (ThresholdsMultiDataColor *record = d->records.output(output))
        record->setThresholdConstant(index, static_cast<unsigned int>(value));
}

void ThresholdMultiManagerColor::setHasWindows(int output, int index, bool hasWindow)
{
    if (ThresholdsMultiDataColor *record = d->records.output(output))
        record->setHasWindow(index, hasWindow);
}

bool ThresholdMultiManagerColor::hasWindows(int output, int index) const
{
    const ThresholdsMultiDataColor *record = d->records.output(output);
    return record && record->hasWindow(index);
}

void ThresholdMultiManagerColor::update(void *source)
{
    d->records.forEachPosition(source, [this](unsigned int position) { Q_EMIT emitOutputUpdated(position); });
}

} // namespace Utils
