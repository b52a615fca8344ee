// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDSMULTIDATACOLOR_H
#define UTILS_THRESHOLDSMULTIDATACOLOR_H

#include "utils_export.h"

#include "core/observer.h"

#include <memory>

namespace Utils {

/*!
    \brief A numbered list of colour thresholds.

    Each entry holds a taught colour (red, green, blue, light), a high and a low
    limit for each of those four, hysteresis ("noise"), an offset and a window
    flag. Indexes run from 0 to count - 1; setters ignore any other index and
    getters answer -1.0, -1 or false for it. There is no sensor string form.

    Copies are shallow (they share the values); observers are not copied.

    \sa ThresholdsMultiData, ThresholdMultiManagerColor
*/
class UTILS_EXPORT ThresholdsMultiDataColor : public Observable
{
public:
    //! Creates \a count entries, all zero and without window; none when count < 1.
    explicit ThresholdsMultiDataColor(int count);
    ThresholdsMultiDataColor(const ThresholdsMultiDataColor &other);
    ThresholdsMultiDataColor &operator=(const ThresholdsMultiDataColor &other);
    virtual ~ThresholdsMultiDataColor();

    //! The colour setters store the value and notify the observers.
    void setColorRed(int index, const double &value);
    void setColorGreen(int index, const double &value);
    void setColorBlue(int index, const double &value);
    void setColorLight(int index, const double &value);
    void setColorRedHigh(int index, const double &value);
    void setColorRedLow(int index, const double &value);
    void setColorGreenHigh(int index, const double &value);
    void setColorGreenLow(int index, const double &value);
    void setColorBlueHigh(int index, const double &value);
    void setColorBlueLow(int index, const double &value);
    void setColorLightHigh(int index, const double &value);
    void setColorLightLow(int index, const double &value);

    double red(int index) const;
    double green(int index) const;
    double blue(int index) const;
    double light(int index) const;
    double redHigh(int index) const;
    double redLow(int index) const;
    double greenHigh(int index) const;
    double greenLow(int index) const;
    double blueHigh(int index) const;
    double blueLow(int index) const;
    double lightHigh(int index) const;
    double lightLow(int index) const;

    //! Stores the hysteresis (negative allowed) and notifies.
    void setNoise(int index, const int &noise);
    int noise(int index) const;
    //! Stores the entry's offset; no notification.
    void setThresholdConstant(int index, unsigned int constant);
    //! Stores the window flag; no notification.
    void setHasWindow(int index, bool hasWindow);
    bool hasWindow(int index) const;

private:
    struct Private;
    void setColour(int index, int field, double value);
    double colour(int index, int field) const;
    std::shared_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDSMULTIDATACOLOR_H
