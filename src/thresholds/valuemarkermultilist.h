// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_VALUEMARKERMULTILIST_H
#define UTILS_VALUEMARKERMULTILIST_H

#include "utils_export.h"

#include "thresholds/valuemarker.h"

namespace Utils {

/*!
    \brief The value label of the multi-curve list charts: signal values, each
    written in the colour of its curve.

    Shows the same label text as ValueMarkerColor ("Signal 0" at first), on one
    line. The texts "Signal: " and " S<n>: " are written in black; each value
    of vSetValueList() is written in the colour given at its position (black
    when the colour list is shorter or the colour invalid), so the reader finds
    the curve by its colour.

    vSetValue() only stores its values; the precision and layout flags of
    ValueMarker do not change the label text.

    \sa ValueMarker, ValueMarkerColor
*/
class UTILS_EXPORT ValueMarkerMultiList : public ValueMarker
{
    Q_OBJECT

public:
    //! A label on \a plot's canvas, which becomes its parent and owner.
    explicit ValueMarkerMultiList(QwtPlot *plot);
    ~ValueMarkerMultiList() override;

    /*!
        As ValueMarkerColor::vSetValueList(); value i is written in
        \a colors at i.
    */
    void vSetValueList(const QList<double> &values, const QList<int> &types, const QList<QColor> &colors);
    //! As ValueMarkerColor::vSetValueColor(), in black.
    void vSetValueColor(const QList<double> &values, const QString &name);
    //! The value texts of the last vSetValueColor() with two or more values, one per value.
    using ValueMarker::valueTexts;

    /*!
        The host's own word for "Signal" in the label text ("Signal: ..." and
        the first "Signal 0"), for hosts that translate their chart texts
        themselves. An empty \a signalText goes back to the library's
        translation. The numbered " S" entries keep their letter.
    */
    void translateElements(const QString &signalText);
};

} // namespace Utils

#endif // UTILS_VALUEMARKERMULTILIST_H
