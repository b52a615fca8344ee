// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_THRESHOLDDATAMANAGER_H
#define UTILS_THRESHOLDDATAMANAGER_H

#include "utils_export.h"

#include "core/observer.h"
#include "thresholds/thresholdsdata.h"

#include <QObject>

#include <memory>
#include <string>

namespace Utils {

/*!
    \brief One ThresholdsData record per switching output of a colour sensor.

    Outputs are numbered from 1. setOutputs() creates the records, each with
    the sensor's zero point 32768 (0x8000) as the offset of every channel. The
    manager observes its records and turns every change into
    emitOutputUpdated(), which carries the zero-based position of the record
    (output - 1), unlike every other operation here.

    Reads and writes for an output outside 1..outputs are ignored or answered
    with -1.0, -1 or an empty string. Slots connected to emitOutputUpdated()
    must not call setOutputs() directly (the emitting record is still busy);
    connect them queued to do so.

    \sa ThresholdMultiManager, ThresholdMultiManagerColor
*/
class UTILS_EXPORT ThresholdDataManager : public QObject, public Observer
{
    Q_OBJECT

public:
    ThresholdDataManager();
    ~ThresholdDataManager() override;

    //! Replaces all records by \a count fresh records (none for 0 or less).
    void setOutputs(int count);
    //! The count last given to setOutputs().
    int outputs() const;

    void setLow(unsigned int output, ThresholdsData::Component component, const double &value, bool noUpperLimit,
                bool allowNegative);
    void setHigh(unsigned int output, ThresholdsData::Component component, const double &value, bool noUpperLimit,
                 bool allowNegative);
    void setNoise(unsigned int output, ThresholdsData::Component component, const int &noise);
    void setFromHexString(unsigned int output, ThresholdsData::Component component, const std::string &text);
    double low(unsigned int output, ThresholdsData::Component component) const;
    double high(unsigned int output, ThresholdsData::Component component) const;
    int noise(unsigned int output, ThresholdsData::Component component) const;
    std::string toHexString(unsigned int output, ThresholdsData::Component component) const;

    //! Observer call of the records; emits emitOutputUpdated() for the source's position.
    void update(void *source) override;

Q_SIGNALS:
    //! A record changed; \a position is zero-based (output number - 1).
    void emitOutputUpdated(unsigned int position);

protected:
    //! Detaches from and deletes every record; outputs() keeps its value.
    void clearDataVector();

private:
    Q_DISABLE_COPY(ThresholdDataManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_THRESHOLDDATAMANAGER_H
