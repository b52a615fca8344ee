// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDMULTIMANAGER_H
#define UTILS_THRESHOLDMULTIMANAGER_H

#include "utils_export.h"

#include "core/observer.h"

#include <QObject>

#include <memory>
#include <string>

namespace Utils {

class ThresholdsMultiData;

/*!
    \brief One ThresholdsMultiData record per switching output.

    Every record is created by setOutputs() with getComponentCount() entries,
    each with the sensor's zero point 32768 as offset. Outputs are numbered
    from 1, entries from 0; emitOutputUpdated() carries the zero-based record
    position (output - 1). Operations on an output outside 1..outputs are
    ignored or answered with -1.0, -1, false or an empty string.

    \sa ThresholdDataManager, ThresholdMultiManagerColor
*/
class UTILS_EXPORT ThresholdMultiManager : public QObject, public Observer
{
    Q_OBJECT

public:
    explicit ThresholdMultiManager(int componentCount);
    ~ThresholdMultiManager() override;

    //! Replaces all records by \a count fresh records (none for 0 or less).
    void setOutputs(int count);
    int outputs() const;
    //! One more entry per record, for records created by a later setOutputs().
    void addComponent();
    int getComponentCount() const;

    void setLow(unsigned int output, int index, const double &value);
    void setHigh(unsigned int output, int index, const double &value);
    void setMiddle(unsigned int output, int index, const double &value);
    void setNoise(unsigned int output, int index, const int &noise);
    //! The sensor's four words, taken as unsigned numbers.
    void setFromValues(unsigned int output, int index, unsigned int a, unsigned int b, unsigned int c, unsigned int d);
    double low(unsigned int output, int index) const;
    double high(unsigned int output, int index) const;
    int noise(unsigned int output, int index) const;
    std::string toHexString(unsigned int output, int index) const;
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
    Q_DISABLE_COPY(ThresholdMultiManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDMULTIMANAGER_H
