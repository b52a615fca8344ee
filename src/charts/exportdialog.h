// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_EXPORTDIALOG_H
#define UTILS_EXPORTDIALOG_H

#include "utils_export.h"

#include <QByteArray>
#include <QDialog>
#include <QList>
#include <QString>

#include <memory>

namespace Utils {

class ValueOverTime;

/*!
    \brief The modal dialog that saves recorded series as a CSV text file.

    The user picks the separator (any combination of tab, comma, semicolon,
    space and a free text, joined in that order), sees the first ten rows and
    chooses the file; accepting the dialog writes it.

    The text has a header line, the titles joined by the separator, then one
    line per sample of series 0: its time as local "dd-MM-yyyy hh:mm:ss.zzz"
    (truncated to whole ms), then the value of every series in fixed notation
    with precision() decimals, an empty cell where a series is shorter. Rows
    whose series-0 value is -1000.0 (the break sentinel of the multi-curve
    charts) are left out. Every line ends in "\n"; the text is UTF-8. A NaN
    value reads "nan", infinities "inf" and "-inf", as QString::number() gives
    them; a time that is NaN, infinite or beyond the 64-bit millisecond range
    leaves the time cell empty.

    Neither list is owned; both must outlive the dialog. Without a data list
    the dialog accepts itself at once and exports nothing.
*/
class UTILS_EXPORT ExportDialog : public QDialog
{
    Q_OBJECT

public:
    ExportDialog(QList<const Utils::ValueOverTime *> *data, QList<QString> *headers, QWidget *parent = nullptr,
        Qt::WindowFlags flags = Qt::WindowFlags());
    ~ExportDialog() override;

    /*!
        Number of decimals of every value, 0 by default. A negative number
        means 6, as for QString::number(); more than 1074 decimals (the most a
        double has) are held at 1074. Refreshes the preview.
    */
    void setPrecision(int precision);
    int precision() const;

    //! The separator as the check boxes make it now; "," at the start.
    QString delimiter() const;
    //! The chosen file, empty until the user picked one.
    QString fileName() const;

public Q_SLOTS:
    //! Rebuilds the separator from the check boxes and refreshes the preview.
    void vDelimiterUpdated();
    //! Asks for the file ("Save As...", "*.csv") and enables the buttons.
    void vSelectFileDialog();
    //! Saves the whole text when \a result is QDialog::Accepted and a file is chosen.
    void vFinished(int result);

protected:
    //! Shows the first ten rows (or fewer) in the preview.
    void vRefreshOutputData();
    /*!
        The CSV text of the rows [\a first, \a last) of series 0; a negative
        \a last means all rows. Both are clamped to the series.
    */
    QByteArray oExportData(int first, int last);
    /*!
        Writes \a data to the chosen file. The file is replaced only when the
        whole text was written; on any failure an existing file is left as it
        was and false is returned. False as well when no file is chosen.
    */
    bool bSaveToFile(const QByteArray &data);

    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void vRetranslateUi();

    struct Private;
    std::unique_ptr<Private> d;

    Q_DISABLE_COPY(ExportDialog)
};

} // namespace Utils

#endif // UTILS_EXPORTDIALOG_H
