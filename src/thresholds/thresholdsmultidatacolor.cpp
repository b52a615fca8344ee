// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdsmultidatacolor.h"

#include <QVector>

namespace Utils {

namespace {

// Positions of the twelve colour values inside an entry.
enum Field {
    Red,
    Green,
    Blue,
    Light,
    RedHigh,
    RedLow,
    GreenHigh,
    GreenLow,
    BlueHigh,
    BlueLow,
    LightHigh,
    LightLow,
    FieldCount
};

struct Entry
{
    double colours[FieldCount] = {};
    quint32 constant = 0;
    qint32 noise = 0;
    bool hasWindow = false;
};

} // namespace

struct ThresholdsMultiDataColor::Private
{
    QVector<Entry> entries;

    bool valid(int index) const { return index >= 0 && index < entries.size(); }
};

ThresholdsMultiDataColor::ThresholdsMultiDataColor(int count)
    : d(std::make_shared<Private>())
{
    if (count > 0)
        d->entries.resize(count);
}

// Shallow on purpose: both records share one value block; observers stay behind.
ThresholdsMultiDataColor::ThresholdsMultiDataColor(const ThresholdsMultiDataColor &other)
    : Observable()
    , d(other.d)
{
}

ThresholdsMultiDataColor &ThresholdsMultiDataColor::operator=(const ThresholdsMultiDataColor &other)
{
    d = other.d;
    return *this;
}

ThresholdsMultiDataColor::~ThresholdsMultiDataColor() = default;

void ThresholdsMultiDataColor::setColour(int index, int field, double value)
{
    if (!d->valid(index))
        return;
    d->entries[index].colours[field] = value;
    notify();
}

double ThresholdsMultiDataColor::colour(int index, int field) const
{
    return d->valid(index) ? d->entries.at(index).colours[field] : -1.0;
}

void ThresholdsMultiDataColor::setColorRed(int index, const double &value) { setColour(index, Red, value); }
void ThresholdsMultiDataColor::setColorGreen(int index, const double &value) { setColour(index, Green, value); }
void ThresholdsMultiDataColor::setColorBlue(int index, const double &value) { setColour(index, Blue, value); }
void ThresholdsMultiDataColor::setColorLight(int index, const double &value) { setColour(index, Light, value); }
void ThresholdsMultiDataColor::setColorRedHigh(int index, const double &value) { setColour(index, RedHigh, value); }
void ThresholdsMultiDataColor::setColorRedLow(int index, const double &value) { setColour(index, RedLow, value); }
void ThresholdsMultiDataColor::setColorGreenHigh(int index, const double &value) { setColour(index, GreenHigh, value); }
void ThresholdsMultiDataColor::setColorGreenLow(int index, const double &value) { setColour(index, GreenLow, value); }
void ThresholdsMultiDataColor::setColorBlueHigh(int index, const double &value) { setColour(index, BlueHigh, value); }
void ThresholdsMultiDataColor::setColorBlueLow(int index, const double &value) { setColour(index, BlueLow, value); }
void ThresholdsMultiDataColor::setColorLightHigh(int index, const double &value) { setColour(index, LightHigh, value); }
void ThresholdsMultiDataColor::setColorLightLow(int index, const double &value) { setColour(index, LightLow, value); }

double ThresholdsMultiDataColor::red(int index) const { return colour(index, Red); }
double ThresholdsMultiDataColor::green(int index) const { return colour(index, Green); }
double ThresholdsMultiDataColor::blue(int index) const { return colour(index, Blue); }
double ThresholdsMultiDataColor::light(int index) const { return colour(index, Light); }
double ThresholdsMultiDataColor::redHigh(int index) const { return colour(index, RedHigh); }
double ThresholdsMultiDataColor::redLow(int index) const { return colour(index, RedLow); }
double ThresholdsMultiDataColor::greenHigh(int index) const { return colour(index, GreenHigh); }
double ThresholdsMultiDataColor::greenLow(int index) const { return colour(index, GreenLow); }
double ThresholdsMultiDataColor::blueHigh(int index) const { return colour(index, BlueHigh); }
double ThresholdsMultiDataColor::blueLow(int index) const { return colour(index, BlueLow); }
double ThresholdsMultiDataColor::lightHigh(int index) const { return colour(index, LightHigh); }
double ThresholdsMultiDataColor::lightLow(int index) const { return colour(index, LightLow); }

void ThresholdsMultiDataColor::setNoise(int index, const int &noise)
{
    if (!d->valid(index))
        return;
    d->entries[index].noise = noise;
    notify();
}

int ThresholdsMultiDataColor::noise(int index) const
{
    return d->valid(index) ? d->entries.at(index).noise : -1;
}

void ThresholdsMultiDataColor::setThresholdConstant(int index, unsigned int constant)
{
    if (d->valid(index))
        d->entries[index].constant = constant;
}

void ThresholdsMultiDataColor::setHasWindow(int index, bool hasWindow)
{
    if (d->valid(index))
        d->entries[index].hasWindow = hasWindow;
}

bool ThresholdsMultiDataColor::hasWindow(int index) const
{
    return d->valid(index) && d->entries.at(index).hasWindow;
}

} // namespace Utils
