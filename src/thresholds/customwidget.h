// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CUSTOMWIDGET_H
#define UTILS_CUSTOMWIDGET_H

#include "utils_export.h"

#include <QBrush>
#include <QWidget>

#include <memory>

class QwtPlot;

namespace Utils {

/*!
    \brief A shaded band over a value range of a plot's canvas.

    The band spans the full canvas width between two yLeft values and is placed
    again whenever the yLeft scale or the canvas size changes, so it follows
    zoom and pan. It lets every mouse event through to what lies below (markers,
    zoomer, panner). A range outside the visible scale simply lies off the
    canvas.

    \sa ThresholdWindowWidget
*/
class UTILS_EXPORT CustomWidget : public QWidget
{
    Q_OBJECT

public:
    //! A hidden band on \a plot's canvas; the canvas becomes its parent.
    explicit CustomWidget(QwtPlot *plot);
    ~CustomWidget() override;

    //! The band between \a from and \a to (yLeft units, either order).
    void setRange(double from, double to);
    //! The smaller end of the range.
    double lowerValue() const;
    //! The larger end of the range.
    double upperValue() const;

    void setBrush(const QBrush &brush);
    QBrush brush() const;

    //! Places the band for the present scale and canvas size.
    void vItemChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(CustomWidget)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CUSTOMWIDGET_H
