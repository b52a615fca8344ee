// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_GENERICCHARTCOLOR_H
#define UTILS_GENERICCHARTCOLOR_H

#include "charts/genericchartmulti.h"

namespace Utils {
namespace Charts {

/*!
    \brief The live chart of a colour sensor: a fixed number of curves per plot
    (the colour channels red, green, blue, then further signals), with a colour
    value marker ("R: 10  G: 20  B: 30").

    \sa GenericChartMulti, Utils::ValueMarkerColor
*/
class UTILS_EXPORT GenericChartColor : public GenericChartMulti
{
    Q_OBJECT

public:
    //! \a curves curves per plot, each with its own series.
    GenericChartColor(int plots, QWidget *parent, QMainWindow *mainWindow, bool secondValueMarker, bool flag,
                      int curves);
    ~GenericChartColor() override;

    //! Appends the colour channels as curves and shows them on the marker, named \a name ("Signal" when empty).
    void vAppendDataMultipleCurvesRGB(int plotNr, QList<double> values, bool update, double timeValue, QString name);
    //! Appends the colour channels as curves; the marker stays as it is.
    void vAppendDataMultipleCurvesRGBOnly(int plotNr, QList<double> values, bool update, double timeValue,
                                          QString name);
    //! The curves of every plot as CSV text, the columns titled R, G, B, then the curve numbers.
    std::string dataToStringCurvesRGB() const;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_GENERICCHARTCOLOR_H
