// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdsdata.h"

#include "thresholdsstring_p.h"

#include <QColor>

#include <algorithm>

namespace Utils {

namespace {

constexpr int ComponentCount = 9;

struct Channel
{
    double low = 0.0;
    double high = 0.0;
    qint32 constant = 0;
};

bool isComponent(int component)
{
    return component >= 0 && component < ComponentCount;
}

// Clamps a limit as setLow()/setHigh() do; the low side stops one below the high
// side so a low value can never reach the high limit.
double clampedLimit(int component, double value, bool noUpperLimit, bool allowNegative, bool highSide)
{
    if (!allowNegative && value < 0.0)
        value = 0.0;
    if (!noUpperLimit) {
        const double limit = component == ThresholdsData::Hue ? 359.0 : (highSide ? 512.0 : 511.0);
        if (value > limit)
            value = limit;
    }
    return value;
}

// HSL input from a Saturation/Lightness limit: halved, and a stored 0 gives 1 so
// that an untouched channel still yields a visible colour.
int hslInput(double stored)
{
    if (stored == 0.0)
        return 1;
    return ThresholdsString::truncated(stored / 2.0);
}

struct Rgb
{
    int red = 0;
    int green = 0;
    int blue = 0;
};

// Colour limits of one side from hue, saturation and lightness. Values outside
// the HSL model (possible with noUpperLimit/allowNegative) are held at its edges.
Rgb colourLimits(double hue, double saturationLimit, double lightnessLimit)
{
    const int h = std::clamp(ThresholdsString::truncated(hue), 0, 359);
    const int s = std::clamp(hslInput(saturationLimit), 0, 255);
    const int l = std::clamp(hslInput(lightnessLimit), 0, 255);
    const QColor colour = QColor::fromHsl(h, s, l, 255);
    const int r2 = colour.red() * 2;
    const int g2 = colour.green() * 2;
    const int b2 = colour.blue() * 2;
    const int maximum = std::max({r2, g2, b2});
    const int minimum = std::min({r2, g2, b2});
    Rgb result;
    if (maximum == minimum)
        return result;
    // Stretch the colour's spread to the sensor's full 0..512 scale.
    result.red = ((r2 - minimum) * 512) / (maximum - minimum);
    result.green = ((g2 - minimum) * 512) / (maximum - minimum);
    result.blue = ((b2 - minimum) * 512) / (maximum - minimum);
    return result;
}

// HSL hue of the colour whose components are the given limits halved.
double hueOf(double redLimit, double greenLimit, double blueLimit)
{
    const auto component = [](double limit) { return std::clamp(ThresholdsString::truncated(limit / 2.0), 0, 255); };
    return QColor::fromRgb(component(redLimit), component(greenLimit), component(blueLimit)).hslHue();
}

} // namespace

struct ThresholdsData::Private
{
    Channel channels[ComponentCount];
    qint32 colourNoise = 0;
    qint32 saturationNoise = 0;
    qint32 lightnessNoise = 0;

    // The noise slot a component uses in the sensor string.
    qint32 &noiseSlot(int component)
    {
        if (component == Saturation)
            return saturationNoise;
        if (component == Lightness)
            return lightnessNoise;
        return colourNoise;
    }
};

ThresholdsData::ThresholdsData()
    : d(std::make_shared<Private>())
{
}

// Shallow on purpose: both records share one value block; observers stay behind.
ThresholdsData::ThresholdsData(const ThresholdsData &other)
    : Observable()
    , d(other.d)
{
}

ThresholdsData &ThresholdsData::operator=(const ThresholdsData &other)
{
    d = other.d;
    return *this;
}

ThresholdsData::~ThresholdsData() = default;

void ThresholdsData::setLow(Component component, const double &value, bool noUpperLimit, bool allowNegative)
{
    const double stored = clampedLimit(component, value, noUpperLimit, allowNegative, false);
    if (isComponent(component)) {
        d->channels[component].low = stored;
        if (component == Hue)
            recomputeColourFromHue();
    }
    notify();
}

void ThresholdsData::setHigh(Component component, const double &value, bool noUpperLimit, bool allowNegative)
{
    const double stored = clampedLimit(component, value, noUpperLimit, allowNegative, true);
    if (isComponent(component)) {
        d->channels[component].high = stored;
        if (component == Hue)
            recomputeColourFromHue();
    }
    notify();
}

double ThresholdsData::low(Component component) const
{
    return isComponent(component) ? d->channels[component].low : -1.0;
}

double ThresholdsData::high(Component component) const
{
    return isComponent(component) ? d->channels[component].high : -1.0;
}

void ThresholdsData::setNoise(Component component, const int &noise)
{
    const qint32 stored = std::max(noise, 0);
    if (component == Hue)
        d->colourNoise = stored;
    else if (component == Saturation)
        d->saturationNoise = stored;
    else if (component == Lightness)
        d->lightnessNoise = stored;
    notify();
}

int ThresholdsData::noise(Component component) const
{
    switch (component) {
    case Hue:
        return d->colourNoise;
    case Saturation:
        return d->saturationNoise;
    case Lightness:
        return d->lightnessNoise;
    default:
        return -1;
    }
}

void ThresholdsData::setThresholdConstant(Component component, const int &constant)
{
    if (isComponent(component))
        d->channels[component].constant = constant;
}

void ThresholdsData::setFromHexString(Component component, const std::string &text)
{
    if (text.size() != 16)
        return;
    const int w1 = ThresholdsString::hexWord(text, 0);
    const int w2 = ThresholdsString::hexWord(text, 4);
    const int w3 = ThresholdsString::hexWord(text, 8);
    // Word 4 (offset - noise + low) carries nothing that words 1-3 do not.

    if (isComponent(component)) {
        Channel &channel = d->channels[component];
        const std::int64_t k = channel.constant;
        channel.high = double(std::clamp<std::int64_t>(w2 - k, 0, 510));
        channel.low = double(std::clamp<std::int64_t>(w3 - k, 0, 510));
        d->noiseSlot(component) = w1 - w2;
        if (component == Hue)
            ThresholdsString::logPair("ThresholdsData", channel.low, channel.high);
        // The sensor keeps colour limits; the hue shown is the one they make,
        // even when the string was read for Hue itself.
        if (component != Saturation && component != Lightness)
            recomputeHueFromColour();
    }
    notify();
}

std::string ThresholdsData::toHexString(Component component) const
{
    if (!isComponent(component))
        return ThresholdsString::fourWords(0, 0, 0, 0);
    const Channel &channel = d->channels[component];
    const std::int64_t k = channel.constant;
    const std::int64_t n = d->noiseSlot(component);
    const std::int64_t high = ThresholdsString::truncated(channel.high);
    const std::int64_t low = ThresholdsString::truncated(channel.low);
    return ThresholdsString::fourWords(k + n + high, k + high, k + low, k - n + low);
}

void ThresholdsData::recomputeColourFromHue()
{
    Channel *c = d->channels;
    const Rgb lowSide = colourLimits(c[Hue].low, c[Saturation].low, c[Lightness].low);
    const Rgb highSide = colourLimits(c[Hue].high, c[Saturation].high, c[Lightness].high);
    c[Red].low = lowSide.red;
    c[Green].low = lowSide.green;
    c[Blue].low = lowSide.blue;
    c[Red].high = highSide.red;
    c[Green].high = highSide.green;
    c[Blue].high = highSide.blue;
}

void ThresholdsData::recomputeHueFromColour()
{
    Channel *c = d->channels;
    c[Hue].low = hueOf(c[Red].low, c[Green].low, c[Blue].low);
    c[Hue].high = hueOf(c[Red].high, c[Green].high, c[Blue].high);
}

} // namespace Utils
