// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TIMEPICKER_H
#define UTILS_TIMEPICKER_H

#include "utils_export.h"

#include <qwt_plot_picker.h>

namespace Utils {

/*!
    \brief Tracker of the plot canvas: shows "time, value" under the cursor.

    The time is the x value (ms since the epoch) as "hh:mm:ss.zzz", the value is
    the y value in format 'g'; the text sits on a mostly opaque white background.
*/
class UTILS_EXPORT TimePicker : public QwtPlotPicker
{
    Q_OBJECT

public:
    explicit TimePicker(QWidget *canvas);
    ~TimePicker() override;

    QwtText trackerTextF(const QPointF &pos) const override;
};

} // namespace Utils

#endif // UTILS_TIMEPICKER_H
