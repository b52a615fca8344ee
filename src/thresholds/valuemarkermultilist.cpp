// SPDX-License-Identifier: LGPL-2.1-or-later
#include "valuemarkermultilist.h"

namespace Utils {

ValueMarkerMultiList::ValueMarkerMultiList(QwtPlot *plot)
    : ValueMarker(plot, Form::LabelText)
{ }

ValueMarkerMultiList::~ValueMarkerMultiList() = default;

void ValueMarkerMultiList::vSetValueList(
    const QList<double> &values, const QList<int> &types, const QList<QColor> &colors)
{
    setValueList(values, types, colors);
}

void ValueMarkerMultiList::vSetValueColor(const QList<double> &values, const QString &name)
{
    setValueColor(values, name);
}

void ValueMarkerMultiList::translateElements(const QString &signalText)
{
    setSignalWord(signalText);
}

} // namespace Utils
