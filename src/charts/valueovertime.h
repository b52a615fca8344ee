// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_VALUEOVERTIME_H
#define UTILS_VALUEOVERTIME_H

#include "utils_export.h"

#include <QObject>
#include <QPointF>

#include <memory>

namespace Utils {

/*!
    \brief The sample series of one curve: two parallel, contiguous arrays of
    double, x (time in ms since the epoch, or a plain position) and y (value).

    The arrays are contiguous so that a curve can draw straight from pxData()
    and pyData() without copying. They grow geometrically and never shrink on
    their own: a series trimmed with vEraseFirstValues() and refilled reuses
    its memory, so appending allocates nothing once the series has reached its
    working size.

    vDataUpdated() hands the current pointers and count to whoever draws from
    the arrays. It is emitted after every successful vAppend(), and also after
    every other change that moves the arrays or changes a sample a curve may
    already show: vRemove(), vReplace(), vClear(), reserve() when it moves the
    arrays, and assignment. It is not emitted by vEraseFirstValues(): the live
    chart trims its history from inside its slot for this very signal, and the
    next append reports the shorter series anyway; the memory stays where it
    was, so a curve holding the old count reads stale but valid samples until
    then.

    A copy is a new object with no parent and no connections that holds copies
    of both arrays.
*/
class UTILS_EXPORT ValueOverTime : public QObject
{
    Q_OBJECT

public:
    ValueOverTime();
    ValueOverTime(const ValueOverTime &other);
    //! Copies both arrays of \a other and emits vDataUpdated().
    ValueOverTime &operator=(const ValueOverTime &other);
    ~ValueOverTime() override;

    /*!
        Appends the sample (\a time, \a value). A sample equal to the newest one
        in both time and value is dropped (no signal). A \a time of exactly 0.0
        stores the current wall-clock time in ms since the epoch; the repeat
        check compares the 0.0 itself, so such samples are never dropped.
    */
    void vAppend(const double &value, const double &time);
    //! Removes the sample at \a index from both arrays; an index outside the series is ignored.
    void vRemove(const int &index);
    /*!
        Overwrites the sample at \a index with (\a time, \a value), both stored
        as given (0.0 is not replaced by the current time here). An index
        outside the series is ignored.
    */
    void vReplace(const int &index, const double &value, const double &time);
    /*!
        Removes the first \a n samples in one block when the series holds at
        least \a n; otherwise (and for \a n <= 0) leaves it unchanged. The
        memory is kept for the samples that follow.
    */
    void vEraseFirstValues(int n);
    //! Empties both arrays; their memory is kept for refilling.
    void vClear();
    //! Makes room for \a count samples so that appending up to there allocates nothing.
    void reserve(int count);

    int size() const;
    //! Number of samples the arrays hold without allocating.
    int capacity() const;
    //! The first x, or null when the series is empty. Valid until the next change.
    const double *pxData() const;
    //! The first y, or null when the series is empty. Valid until the next change.
    const double *pyData() const;
    //! The oldest sample as (x, y); (0, 0) when the series is empty.
    QPointF oFirst() const;
    //! The newest sample as (x, y); (0, 0) when the series is empty.
    QPointF oLast() const;
    //! Newest x minus oldest x; 0.0 when the series is empty.
    double s64Range() const;

Q_SIGNALS:
    //! The arrays as they are now: x, y and the number of samples.
    void vDataUpdated(const double *x, const double *y, const int count);

private:
    void vNotify();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_VALUEOVERTIME_H
