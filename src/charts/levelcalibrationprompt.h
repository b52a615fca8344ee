// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LEVELCALIBRATIONPROMPT_H
#define UTILS_LEVELCALIBRATIONPROMPT_H

#include "utils_export.h"

#include <QDialog>
#include <QList>

#include <memory>

namespace Utils {

/*!
    \brief The dialog that guides the user through a black-level or a
    white-level calibration of a colour sensor.

    For the black level it asks the user to cover the sensor so that no light
    reaches it, for the white level to present a white target at the working
    distance; then to wait for a steady reading and confirm. The live reading
    is shown as it comes (vSetReading()); "Confirm" stays disabled until there
    is one, so a calibration never takes a missing value. oReading() is the
    reading shown when the user confirmed.

    Utils::ColorChart opens it with exec() and feeds it; a host with its own
    reading can do the same and send the sensor its calibration command when
    the dialog is accepted. All texts are the library's own (context
    Utils::LevelCalibrationPrompt), translated again on a language change.

    \sa ColorChart
*/
class UTILS_EXPORT LevelCalibrationPrompt : public QDialog
{
    Q_OBJECT

public:
    //! Which level the prompt calibrates.
    enum Level
    {
        BlackLevel = 0, //!< sensor covered: the reading that counts as black
        WhiteLevel = 1  //!< white target presented: the reading that counts as white
    };
    Q_ENUM(Level)

    explicit LevelCalibrationPrompt(Level level, QWidget *parent = nullptr);
    ~LevelCalibrationPrompt() override;

    Level eLevel() const;
    //! Shows the reading (red, green, blue) and enables "Confirm".
    void vSetReading(const double &red, const double &green, const double &blue);
    //! No valid reading (e.g. the sensor reported none): "Confirm" is disabled again.
    void vClearReading();
    bool hasReading() const;
    //! The reading shown last as red, green, blue; empty when there is none.
    QList<double> oReading() const;
    //! The instruction the prompt shows, in the current language.
    QString oInstruction() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showReading();

    Q_DISABLE_COPY(LevelCalibrationPrompt)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_LEVELCALIBRATIONPROMPT_H
