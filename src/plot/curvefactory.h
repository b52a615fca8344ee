// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CURVEFACTORY_H
#define UTILS_CURVEFACTORY_H

#include "utils_export.h"

#include "charts/valueovertime.h"

#include <QObject>

#include <memory>

class QwtPlot;

namespace Utils {

class CustomCurve;

/*!
    \brief Keeps one Utils::CustomCurve per sample series on a plot.

    poAttachData() creates the curve of a series once, attaches it to the plot
    and connects the series' vDataUpdated() to the curve's vUpdateData(), so
    that the curve follows every append without copying the samples. The plot
    owns the curves (Qwt deletes attached items with their plot); the factory
    only remembers which curve belongs to which series, and forgets curves that
    were deleted.

    \sa CustomCurve, ValueOverTime
*/
class UTILS_EXPORT CurveFactory : public QObject
{
    Q_OBJECT

public:
    explicit CurveFactory(QwtPlot *plot = nullptr);
    ~CurveFactory() override;

    //! The plot that new curves are attached to.
    void vSetPlotter(QwtPlot *plot);
    QwtPlot *poPlotter() const;

    /*!
        The curve of \a data: created, fed with the series' arrays, connected and
        attached on the first call, the same curve on later calls. Null for a
        null series.
    */
    CustomCurve *poAttachData(ValueOverTime *data);
    //! The curve of \a data, or null when it has none.
    CustomCurve *poCurve(ValueOverTime *data) const;
    //! Number of series that have a curve.
    int count() const;

Q_SIGNALS:
    //! A curve was created for \a data (before it was attached); style it here.
    void curveCreated(Utils::CustomCurve *curve, Utils::ValueOverTime *data);

private:
    Q_DISABLE_COPY(CurveFactory)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CURVEFACTORY_H
