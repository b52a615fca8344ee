// SPDX-License-Identifier: LGPL-2.1-or-later
#include "valuemarkercolor.h"

namespace Utils {

ValueMarkerColor::ValueMarkerColor(QwtPlot *plot)
    : ValueMarker(plot, Form::LabelText)
{ }

ValueMarkerColor::~ValueMarkerColor() = default;

void ValueMarkerColor::vSetValueList(const QList<double> &values, const QList<int> &types)
{
    setValueList(values, types, QList<QColor>());
}

void ValueMarkerColor::vSetValueColor(const QList<double> &values, const QString &name)
{
    setValueColor(values, name);
}

} // namespace Utils
