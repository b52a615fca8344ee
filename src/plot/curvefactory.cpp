// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/curvefactory.h"

#include "charts/valueovertime.h"
#include "plot/customcurve.h"

#include <qwt_plot.h>

#include <QPointer>

#include <map>

namespace Utils {

struct CurveFactory::Private
{
    QPointer<QwtPlot> plot;
    // Ordered by series, as the curves were asked for. The curves belong to the plot.
    std::map<ValueOverTime *, QPointer<CustomCurve>> curves;
};

CurveFactory::CurveFactory(QwtPlot *plot)
    : QObject(nullptr)
    , d(std::make_unique<Private>())
{
    // For queued connections and spies of curveCreated().
    static const int curveType = qRegisterMetaType<Utils::CustomCurve *>("Utils::CustomCurve*");
    static const int seriesType = qRegisterMetaType<Utils::ValueOverTime *>("Utils::ValueOverTime*");
    Q_UNUSED(curveType)
    Q_UNUSED(seriesType)
    d->plot = plot;
}

CurveFactory::~CurveFactory()
{
    // Curves made without a plot have no other owner.
    for (const auto &entry : d->curves) {
        if (entry.second && !entry.second->plot())
            delete entry.second.data();
    }
}

void CurveFactory::vSetPlotter(QwtPlot *plot)
{
    d->plot = plot;
}

QwtPlot *CurveFactory::poPlotter() const
{
    return d->plot;
}

CustomCurve *CurveFactory::poAttachData(ValueOverTime *data)
{
    if (!data)
        return nullptr;
    auto found = d->curves.find(data);
    if (found != d->curves.end() && found->second)
        return found->second;

    auto *curve = new CustomCurve;
    curve->vUpdateData(data->pxData(), data->pyData(), data->size());
    const bool connected = bool(connect(data, &ValueOverTime::vDataUpdated, curve, &CustomCurve::vUpdateData));
    Q_ASSERT(connected);
    Q_UNUSED(connected)
    // A series that goes first leaves the curve with its last arrays: empty it.
    connect(data, &QObject::destroyed, curve, [curve]() { curve->vUpdateData(nullptr, nullptr, 0); });
    d->curves[data] = curve;
    Q_EMIT curveCreated(curve, data);
    if (d->plot)
        curve->attach(d->plot);
    return curve;
}

CustomCurve *CurveFactory::poCurve(ValueOverTime *data) const
{
    const auto found = d->curves.find(data);
    return found == d->curves.end() ? nullptr : found->second.data();
}

int CurveFactory::count() const
{
    int n = 0;
    for (const auto &entry : d->curves)
        n += entry.second ? 1 : 0;
    return n;
}

} // namespace Utils
