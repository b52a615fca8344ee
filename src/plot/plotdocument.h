// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PLOTDOCUMENT_H
#define UTILS_PLOTDOCUMENT_H

#include "utils_export.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <memory>

class QwtPlot;

namespace Utils {

/*!
    \brief Turns a plot into a document: a file export, a print-out, and the
    calibration protocol of a laser distance sensor.

    The plot is not owned. When it is deleted, every operation does nothing.
    All three operations ask the user first (a save dialog or a print dialog)
    and write nothing when the dialog is cancelled.

    The calibration protocol is laid out on the host's letter paper: the host
    provides the image as the resource
    ":/newPrefix/icons/Velmora_business-paper.png" (drawn at its own pixel size
    from the top left corner of a 665 x 895 page; without it the page stays
    white), and names itself with setVendorName().

    \code
    Utils::PlotDocument document(plot);
    document.setVendorName(QStringLiteral("Example Sensors Ltd."));
    document.vExportPdfCalibration(QImage(560, 220, QImage::Format_ARGB32), serial, order,
                                   QStringLiteral("30 ... 300 mm"), QStringLiteral("0.1 %"));
    \endcode

    \sa ChartPlotter
*/
class UTILS_EXPORT PlotDocument : public QObject
{
    Q_OBJECT

public:
    //! A document of \a plot (not owned; may be null or go away later).
    explicit PlotDocument(QwtPlot *plot, QObject *parent = nullptr);
    ~PlotDocument() override;

    //! The plot, or null when it was deleted.
    QwtPlot *poPlot() const;

    /*!
        The vendor named on the calibration protocol as "Supplier: " and
        "Inspector: ". Empty by default.
    */
    void setVendorName(const QString &name);
    QString vendorName() const;

public Q_SLOTS:
    /*!
        Exports the plot to a file the user chooses (caption "Export File
        Name", proposed "chart.pdf"): PDF, SVG or an image format, chosen by
        the extension, 300 x 200 mm at 85 dpi with the plot's background.
        PostScript ("*.ps") is offered but written only by a Qwt built on
        Qt 4; on Qt 5 a warning says that nothing was written.
    */
    void vExportDocument();

    /*!
        Prints the plot after a print dialog: high resolution, landscape, the
        document named after the plot title (line breaks as " -- "), creator
        "Quenda". On a grey-scale printer the canvas background is left out and
        the plot is framed with its scales.
    */
    void vPrintDocument();

    /*!
        Writes the one-page calibration protocol (A4 PDF, whatever extension
        the user types; proposed name "Calibration_Protocol.pdf"): headings,
        the identity table (\a serialNumber, \a orderNumber, the vendor), the
        plot rendered into \a image without its background, the measurement
        conditions (\a workingRange, \a linearityDeviation and the fixed
        surface, filter and warm-up entries), the usual causes of differences,
        and a footer with the vendor as inspector and today's date
        ("dd.MM.yyyy").

        \a image sets the size of the curve on the page in document pixels:
        the page is 665 x 895 and scaled onto the A4 sheet; up to about
        560 x 220 the protocol fits on one page above the letter paper's
        footer. A null image leaves the curve out.
    */
    void vExportPdfCalibration(QImage image, const QString &serialNumber, const QString &orderNumber,
                               const QString &workingRange, const QString &linearityDeviation);

private:
    Q_DISABLE_COPY(PlotDocument)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_PLOTDOCUMENT_H
