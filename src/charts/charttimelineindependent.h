// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTTIMELINEINDEPENDENT_H
#define UTILS_CHARTTIMELINEINDEPENDENT_H

#include "utils_export.h"
#include "charts/charttimeline.h"

#include <QtGlobal>

namespace Utils {

/*!
    \brief The time line of charts whose plots zoom independently.

    The same strip, selection and signals as Utils::ChartTimeLine, with these
    differences: Zoom In and Zoom Out rescale the overview itself by 0.8 and 1.2
    around the time under the selection's centre (with the overview's
    Utils::PlotMagnifier and its limits), so the selection keeps its pixels and
    covers 0.8 or 1.2 times the time it did; and the overview's value axis can
    be fitted to its curves on request (updateYscaleRange()).

    \sa ChartTimeLine, RangeSelector
*/
class UTILS_EXPORT ChartTimeLineIndependent : public ChartTimeLine
{
    Q_OBJECT

public:
    explicit ChartTimeLineIndependent(QWidget *parent = nullptr);
    ~ChartTimeLineIndependent() override;

    /*!
        Makes the selection \a width pixels wide from its left edge (at most up to
        the canvas's right edge) and reports the new window (vRangeChanged()).
    */
    void vSetNewWithRangeSelector(int width);
    //! The selection's left end in whole ms since the epoch (0 for a value that is not a number).
    qint64 s64LeftRange() const;
    //! The selection's right end in whole ms since the epoch (0 for a value that is not a number).
    qint64 s64RightRange() const;
    //! Places the selection at the canvas pixels \a leftPx .. \a rightPx, as RangeSelector::vSetRange() does.
    void vSetRange(const double &leftPx, const double &rightPx, bool bEmit);
    //! Replots the overview and repaints the selection.
    void redraw();
    //! Whether the selection reports its window while it is dragged, or only on release (default).
    void vSetCursorUpdate(bool update);
    bool bCursorUpdate() const;
    /*!
        With \a fit, sets the overview's value axis once to the range of its
        curves' samples (the sample sentinels -1500.0, -15000.0, -1000.0,
        -10000.0 and -65000.0 left out); this walks every sample, so it is meant
        for a finished recording, not for every new sample. Without \a fit, the
        range given by vSetYAxisScale() is shown again.
    */
    void updateYscaleRange(bool fit);
    //! Fixed value range of the overview; while fitted (updateYscaleRange()) it is kept for later.
    void vSetYAxisScale(double min, double max) override;
    //! Enables or disables the buttons, the selection and the wheel zoom together.
    void setEnabled(bool enabled);

public Q_SLOTS:
    //! Rescales the overview by 0.8 around the time under the selection's centre.
    void zoomPlusButtonClicked() override;
    //! Rescales the overview by 1.2 around the time under the selection's centre.
    void zoomMinusButtonClicked() override;

private:
    Q_DISABLE_COPY(ChartTimeLineIndependent)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CHARTTIMELINEINDEPENDENT_H
