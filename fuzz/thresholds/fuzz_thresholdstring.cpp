// SPDX-License-Identifier: LGPL-2.1-or-later
// Feeds arbitrary bytes to the threshold records as the sensor's string.
// The first byte picks the channel (also outside the enumeration) and the
// record's offset; the rest is the string. Afterwards the records must still
// answer within their documented ranges.
#include "thresholds/thresholdsdata.h"
#include "thresholds/thresholdsmultidata.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

struct Counter : Utils::Observer
{
    int calls = 0;
    void update(void *) override { ++calls; }
};

bool isWord(const std::string &text)
{
    // 16 digits, or more when a word exceeds four digits.
    if (text.size() < 16)
        return false;
    for (char c : text) {
        if (!((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F')))
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const int selector = data[0];
    // 0..8 are the channels; 9..11 probe components outside the enumeration.
    const auto component = static_cast<Utils::ThresholdsData::Component>((selector % 12) - (selector & 0x80 ? 12 : 0));
    const std::string text(reinterpret_cast<const char *>(data + 1), size - 1);

    Utils::ThresholdsData record;
    Counter counter;
    record.attach(&counter);
    record.setThresholdConstant(component, (selector & 0x40) ? 0x8000 : 0);
    const std::string before = record.toHexString(component);
    record.setFromHexString(component, text);

    if (text.size() != 16) {
        if (counter.calls != 0 || record.toHexString(component) != before)
            std::abort();
        return 0;
    }
    if (counter.calls != 1)
        std::abort();
    const int c = static_cast<int>(component);
    if (c >= 0 && c <= 8) {
        const double low = record.low(component);
        const double high = record.high(component);
        if (c != Utils::ThresholdsData::Hue && (low < 0.0 || low > 510.0 || high < 0.0 || high > 510.0))
            std::abort();
        if (!isWord(record.toHexString(component)))
            std::abort();
    }

    // The same words as numbers through the list record, any values.
    Utils::ThresholdsMultiData multi(1);
    multi.setThresholdConstant(0, static_cast<unsigned int>(selector) << 8);
    multi.setFromValues(0, std::strtod(text.substr(0, 4).c_str(), nullptr), std::strtod(text.substr(4, 4).c_str(), nullptr),
                        std::strtod(text.substr(8, 4).c_str(), nullptr), 0.0);
    if (!isWord(multi.toHexString(0)))
        std::abort();
    return 0;
}
