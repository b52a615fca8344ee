// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_VALUEMARKERCOLOR_H
#define UTILS_VALUEMARKERCOLOR_H

#include "utils_export.h"

#include "thresholds/valuemarker.h"

namespace Utils {

/*!
    \brief The value label of the colour charts: a colour reading or a list of
    signal values.

    Placed, filled and written like ValueMarker, in black, but it shows a label
    text instead of a single value: "Signal 0" until the first vSetValueList()
    or vSetValueColor(), which each build the text again from empty. A marker
    text (vSetMarkerText(const QString &)) still replaces it. Numbers are
    written in the shortest general form with up to 6 significant digits.

    vSetValue() only stores its values (s64Value(), getSecondValue()); the
    precision and layout flags of ValueMarker do not change the label text.

    \sa ValueMarker, ValueMarkerMultiList
*/
class UTILS_EXPORT ValueMarkerColor : public ValueMarker
{
    Q_OBJECT

public:
    //! A label on \a plot's canvas, which becomes its parent and owner.
    explicit ValueMarkerColor(QwtPlot *plot);
    ~ValueMarkerColor() override;

    /*!
        Signal values: with three values or more the text is "Signal: " and
        value 0, then " S<i-2>: " and value i for every position i from 3 on
        whose type is 2. Positions 1 and 2 carry the colour channels and are
        never written; a missing type counts as not 2. With fewer than three
        values the text is empty.
    */
    void vSetValueList(const QList<double> &values, const QList<int> &types);
    /*!
        A colour reading. One value: \a name, two blanks and the value. Two or
        more: "R: " value 0, "  G: " value 1, "  B: " value 2, as far as there
        are values (further ones are not written), and every value's text is
        kept in valueTexts(). No values: an empty text.
    */
    void vSetValueColor(const QList<double> &values, const QString &name);
    //! The value texts of the last vSetValueColor() with two or more values, one per value.
    using ValueMarker::valueTexts;
};

} // namespace Utils

#endif // UTILS_VALUEMARKERCOLOR_H
