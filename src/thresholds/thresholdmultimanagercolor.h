// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDMULTIMANAGERCOLOR_H
#define UTILS_THRESHOLDMULTIMANAGERCOLOR_H

#include "utils_export.h"

#include "core/observer.h"

#include <QObject>

#include <memory>

namespace Utils {

class ThresholdsMultiDataColor;

/*!
    \brief One ThresholdsMultiDataColor record per switching output.

    Works as ThresholdMultiManager for colour thresholds: records of
    getComponentCount() entries with offset 32768, one-based outputs,
    emitOutputUpdated() with the zero-based record position. The manager only
    writes colours; it has no colour getters. The blue high setter is spelled
    setColorBlueHighh.

    \sa ThresholdMultiManager
*/
class UTILS_EXPORT ThresholdMultiManagerColor : public QObject, public Observer
{
    Q_OBJECT

public:
    explicit ThresholdMultiManagerColor(int componentCount);
    ~ThresholdMultiManagerColor() override;

    //! Replaces all records by \a count fresh records (none for 0 or less).
    void setOutputs(int count);
    int outputs() const;
    //! One more entry per record, for records created by a later setOutputs().
    void addComponent();
    int getComponentCount() const;

    void setNoise(unsigned int output, int index, const int &noise);
    int noise(unsigned int output, int index) const;

    void setColorRed(unsigned int output, int index, const double &value);
    void setColorGreen(unsigned int output, int index, const double &value);
    void setColorBlue(unsigned int output, int index, const double &value);
    void setColorLight(unsigned int output, int index, const double &value);
    void setColorRedHigh(unsigned int output, int index, const double &value);
    void setColorRedLow(unsigned int output, int index, const double &value);
    void setColorGreenHigh(unsigned int output, int index, const double &value);
    void setColorGreenLow(unsigned int output, int index, const double &value);
    void setColorBlueHighh(unsigned int output, int index, const double &value);
    void setColorBlueLow(unsigned int output, int index, const double &value);
    void setColorLightHigh(unsigned int output, int index, const double &value);
    void setColorLightLow(unsigned int output, int index, const double &value);

    void setThresholdConstant(int output, int index, int value);
    void setHasWindows(int output, int index, bool hasWindow);
    bool hasWindows(int output, int index) const;

    //! Observer call of the records; emits emitOutputUpdated() for the source's position.
    void update(void *source) override;

Q_SIGNALS:
    //! A record changed; \a position is zero-based (output number - 1).
    void emitOutputUpdated(unsigned int position);

protected:
    //! Detaches from and deletes every record; outputs() keeps its value.
    void clearDataVector();

private:
    Q_DISABLE_COPY(ThresholdMultiManagerColor)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDMULTIMANAGERCOLOR_H
