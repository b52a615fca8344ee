// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_COLORCHART_H
#define UTILS_COLORCHART_H

#include "utils_export.h"

#include "charts/levelcalibrationprompt.h"

#include <QList>
#include <QWidget>

#include <memory>

namespace Utils {

class Plot;
class RgbRenderer;
class ValueOverTime;

/*!
    \brief The panel of a colour sensor: its red, green and blue channels over
    time, the colour it sees as a swatch beside the taught one, and the black
    and white level calibrations.

    The left part is one Utils::Plot with three curves (red, green, blue), each
    of a Utils::ValueOverTime. Samples follow the rules of the multi-curve live
    charts, as Utils::Charts::GenericChartColor does: a time of 1.0 or less
    means now; after a pause of more than 10 s two points at -1000.0 break every
    channel (the CSV export leaves those rows out); a sample appended with \c
    update false is stored as -10000.0 in every channel. The view pages and
    redraws like Utils::SimpleTimeChart: at most every 20 ms, only the new
    samples between two page moves.

    The right part is a Utils::RgbRenderer, showing at each redraw the newest
    reading with every channel scaled from its black level (0) to its white
    level (255), and below it the buttons "Black level..." and "White level...",
    which run bCalibrateBlackLevel() and bCalibrateWhiteLevel(). Each opens a
    Utils::LevelCalibrationPrompt, keeps it fed with the newest reading and,
    when the user confirms, takes that reading as the level, emits
    levelCalibrated() and levelsChanged(). The levels start at 0 (black) and
    255 (white) in every channel.

    \sa RgbRenderer, LevelCalibrationPrompt, SimpleTimeChart
*/
class UTILS_EXPORT ColorChart : public QWidget
{
    Q_OBJECT
    //! Width of the visible time window in ms (default 60,000).
    Q_PROPERTY(double timeSpan READ timeSpan WRITE setTimeSpan NOTIFY timeSpanChanged)
    //! Whether the two calibration buttons are shown (default true).
    Q_PROPERTY(bool calibrationButtonsVisible READ calibrationButtonsVisible WRITE setCalibrationButtonsVisible)

public:
    //! The channels, as indexes of getData(), the levels and the readings.
    enum Channel
    {
        Red = 0,
        Green = 1,
        Blue = 2
    };
    Q_ENUM(Channel)

    explicit ColorChart(QWidget *parent = nullptr);
    ~ColorChart() override;

    /*!
        Appends one reading at \a timeValue (ms since the epoch; now when 1.0 or
        less), or -10000.0 in every channel when \a update is false, which also
        leaves the swatch without a reading. Called once per sample.
    */
    void vAppendData(const double &red, const double &green, const double &blue, bool update = true,
                     double timeValue = 0.0);
    //! Empties the series; the swatch shows no reading until the next sample.
    void clear();

    //! The series of \a channel (owned by the chart); null outside Red..Blue.
    const ValueOverTime *getData(int channel) const;
    Plot *poPlot() const;
    RgbRenderer *poRenderer() const;

    //! Shows \a low .. \a high on the value axis (default 0 .. 255).
    void vSetYScale(const double &low, const double &high);
    //! A title above the plot; empty for none (the default).
    void setPlotTitle(const QString &title);
    QString plotTitle() const;
    //! Ignores spans that are not above 0 ms.
    void setTimeSpan(double span);
    double timeSpan() const;
    void setCalibrationButtonsVisible(bool visible);
    bool calibrationButtonsVisible() const;

    //! The readings that count as black, per channel.
    void vSetBlackLevel(const double &red, const double &green, const double &blue);
    //! The readings that count as white, per channel.
    void vSetWhiteLevel(const double &red, const double &green, const double &blue);
    //! Red, green and blue.
    QList<double> oBlackLevel() const;
    QList<double> oWhiteLevel() const;
    //! The newest valid reading as red, green, blue; empty when there is none.
    QList<double> oCurrentReading() const;

public Q_SLOTS:
    //! Runs the black-level prompt; true when the user confirmed a reading.
    bool bCalibrateBlackLevel();
    //! Runs the white-level prompt; true when the user confirmed a reading.
    bool bCalibrateWhiteLevel();

Q_SIGNALS:
    void timeSpanChanged(double span);
    //! The user confirmed the reading (\a red, \a green, \a blue) as \a level.
    void levelCalibrated(Utils::LevelCalibrationPrompt::Level level, double red, double green, double blue);
    //! The black or the white level changed, by calibration or by a setter.
    void levelsChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    bool calibrate(LevelCalibrationPrompt::Level level);
    void showReading();
    bool setLevel(double *level, const double &red, const double &green, const double &blue);

    Q_DISABLE_COPY(ColorChart)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_COLORCHART_H
