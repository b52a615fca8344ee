// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDSDATA_H
#define UTILS_THRESHOLDSDATA_H

#include "utils_export.h"

#include "core/observer.h"

#include <memory>
#include <string>

namespace Utils {

/*!
    \brief Switching thresholds of one colour-sensor output: nine channels.

    Every channel has a low and a high switching value and a constant offset that
    the sensor adds to every value it transmits. Hysteresis ("noise") is held in
    three slots: one shared by the colour channels (Hue, Red, Green, Blue and the
    Extra channels), one for Saturation and one for Lightness.

    Hue and Red/Green/Blue are coupled: setting a hue limit recomputes the colour
    limits of that side, and reading a colour channel's sensor string recomputes
    the hue.

    Copies are shallow: a copy refers to the same values as its source, so a
    change through one is seen through the other. Observers are not copied.
    Every change that matters to a display notifies the attached observers.

    \sa ThresholdsMultiData, ThresholdDataManager
*/
class UTILS_EXPORT ThresholdsData : public Observable
{
public:
    /*!
        The channels; the numbering is used as an index by managers and widgets.
        The underlying type is fixed so that any int, also one outside 0..8, is
        a well-defined Component that the operations can reject.
    */
    enum Component : int {
        Hue = 0,
        Red = 1,
        Green = 2,
        Blue = 3,
        Saturation = 4,
        Lightness = 5,
        Extra1 = 6,
        Extra2 = 7,
        Extra3 = 8
    };

    ThresholdsData();
    ThresholdsData(const ThresholdsData &other);
    ThresholdsData &operator=(const ThresholdsData &other);
    virtual ~ThresholdsData();

    /*!
        Stores the lower switching value of \a component. Below 0 the value
        becomes 0 unless \a allowNegative; above the channel's limit (Hue 359,
        others 511) it is clamped unless \a noUpperLimit. Setting Hue recomputes
        the low limits of Red, Green and Blue. Observers are notified, also for a
        component outside the enumeration, which stores nothing.
    */
    void setLow(Component component, const double &value, bool noUpperLimit, bool allowNegative);
    //! As setLow(), for the upper value; its limit is 512 (Hue 359).
    void setHigh(Component component, const double &value, bool noUpperLimit, bool allowNegative);
    //! The lower value, or -1.0 for a component outside the enumeration.
    double low(Component component) const;
    //! The upper value, or -1.0 for a component outside the enumeration.
    double high(Component component) const;

    /*!
        Sets the hysteresis of the slot that \a component names: Hue for the
        colour slot, Saturation, Lightness. A negative value becomes 0; other
        components store nothing. Observers are notified in every case.
    */
    void setNoise(Component component, const int &noise);
    /*!
        The colour noise for Hue, the Saturation or Lightness noise for those,
        and -1 for every other component, although the colour noise also applies
        to Red, Green, Blue and the Extra channels in the sensor string.
    */
    int noise(Component component) const;

    //! Stores the channel's offset. Observers are not notified.
    void setThresholdConstant(Component component, const int &constant);

    /*!
        Reads the sensor's string: four words of four hexadecimal digits.
        A string whose length is not 16 is ignored without notification.
        Otherwise high = word 2 - offset and low = word 3 - offset, each clamped
        to 0..510, and the channel's noise slot becomes word 1 - word 2 (a
        negative result is kept). Word 4 is not read. For Hue and the colour
        and Extra channels the hue limits are then recomputed from the stored
        Red, Green, Blue limits, which replaces a hue read from the string.
        A word that is not hexadecimal reads as 0.
    */
    void setFromHexString(Component component, const std::string &text);
    /*!
        The sensor's string: "%.4X" of offset + noise + high, offset + high,
        offset + low and offset - noise + low (values truncated to integers).
        A component outside the enumeration gives sixteen zero digits.
    */
    std::string toHexString(Component component) const;

private:
    struct Private;
    void recomputeColourFromHue();
    void recomputeHueFromColour();
    std::shared_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDSDATA_H
