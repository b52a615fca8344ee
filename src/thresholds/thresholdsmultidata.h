// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDSMULTIDATA_H
#define UTILS_THRESHOLDSMULTIDATA_H

#include "utils_export.h"

#include "core/observer.h"

#include <memory>
#include <string>

namespace Utils {

/*!
    \brief A numbered list of independent switching thresholds.

    Each entry has a low and a high switching value, two intermediate values,
    hysteresis ("noise"), an offset that the sensor adds to transmitted values
    and a window flag (the output switches inside the band between low and high).
    Indexes run from 0 to count - 1; setters ignore any other index and getters
    answer -1.0, -1, false or an empty string for it.

    The getters of the intermediate values are spelled midle() and midle1(),
    the setters setMiddle() and setMiddle1(); both names are the interface.

    Copies are shallow (they share the values); observers are not copied.

    \sa ThresholdsData, ThresholdsMultiDataColor, ThresholdMultiManager
*/
class UTILS_EXPORT ThresholdsMultiData : public Observable
{
public:
    //! Creates \a count entries, all zero and without window; none when count < 1.
    explicit ThresholdsMultiData(int count);
    ThresholdsMultiData(const ThresholdsMultiData &other);
    ThresholdsMultiData &operator=(const ThresholdsMultiData &other);
    virtual ~ThresholdsMultiData();

    //! Setters store the value unchanged (no clamping) and notify the observers.
    void setLow(int index, const double &value);
    void setHigh(int index, const double &value);
    void setMiddle(int index, const double &value);
    void setMiddle1(int index, const double &value);
    //! Stores the hysteresis unchanged (negative allowed) and notifies.
    void setNoise(int index, const int &noise);
    //! Stores the entry's offset; no notification.
    void setThresholdConstant(int index, unsigned int constant);
    //! Stores the window flag; no notification.
    void setHasWindow(int index, bool hasWindow);

    double low(int index) const;
    double high(int index) const;
    double midle(int index) const;
    double midle1(int index) const;
    int noise(int index) const;
    bool hasWindow(int index) const;

    /*!
        Takes the sensor's four words as numbers: high = \a b - offset (0 when
        negative), low = \a c - offset (when negative: 0 if high > 0, else -1.0),
        noise = \a a - \a b truncated. \a d is not used. Notifies the observers.
    */
    void setFromValues(int index, double a, double b, double c, double d);

    /*!
        The sensor's string, "%.4X" of offset + noise + high, offset + high,
        offset + low and offset - noise + low, where the last word becomes 0 when
        it would be negative. An invalid index gives an empty string.
    */
    std::string toHexString(int index) const;

private:
    struct Private;
    std::shared_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDSMULTIDATA_H
