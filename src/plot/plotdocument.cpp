// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotdocument.h"

#include "plot/plotexport_p.h"

#include <qwt_plot.h>
#include <qwt_plot_renderer.h>

#include <QDate>
#include <QPainter>
#include <QPointer>
#include <QPrinter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextTable>

namespace Utils {

namespace {

// Plain-text lines of the protocol are indented with blanks, as on the
// vendor's paper form; HTML would collapse them, so they go in as text.
const QString Indent = QStringLiteral("       ");

QTextTableFormat tableFormat(qreal width, qreal padding, qreal leftMargin, bool bordered)
{
    QTextTableFormat format;
    if (width > 0)
        format.setWidth(QTextLength(QTextLength::FixedLength, width));
    format.setCellPadding(padding);
    format.setCellSpacing(0);
    format.setAlignment(Qt::AlignLeft);
    format.setLeftMargin(leftMargin);
    if (bordered) {
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QBrush(Qt::black, Qt::SolidPattern));
    } else {
        format.setBorder(0);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
        format.setBorderBrush(QBrush(Qt::black, Qt::NoBrush));
    }
    return format;
}

void setCellText(QTextTable *table, int row, int column, const QString &text)
{
    table->cellAt(row, column).firstCursorPosition().insertText(text);
}

void setCellBackground(QTextTable *table, int row, int column, const QColor &colour)
{
    QTextTableCell cell = table->cellAt(row, column);
    QTextCharFormat format = cell.format();
    format.setBackground(colour);
    cell.setFormat(format);
}

} // namespace

struct PlotDocument::Private
{
    QPointer<QwtPlot> plot;
    QString vendorName;
};

PlotDocument::PlotDocument(QwtPlot *plot, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->plot = plot;
}

PlotDocument::~PlotDocument() = default;

QwtPlot *PlotDocument::poPlot() const
{
    return d->plot;
}

void PlotDocument::setVendorName(const QString &name)
{
    d->vendorName = name;
}

QString PlotDocument::vendorName() const
{
    return d->vendorName;
}

void PlotDocument::vExportDocument()
{
    if (d->plot)
        PlotExport::exportPlot(d->plot, d->plot);
}

void PlotDocument::vPrintDocument()
{
    if (d->plot)
        PlotExport::printPlot(d->plot, QStringLiteral("Quenda"), d->plot);
}

void PlotDocument::vExportPdfCalibration(QImage image, const QString &serialNumber, const QString &orderNumber,
                                         const QString &workingRange, const QString &linearityDeviation)
{
    if (!d->plot)
        return;
    const QString fileName = PlotExport::askFileName(d->plot, QStringLiteral("Calibration_Protocol.pdf"));
    if (fileName.isEmpty() || !d->plot)
        return;

    // The font attributes are quoted as the protocol's template has them; the
    // rich-text parser still takes the size from them.
    const QString title = QStringLiteral("<h1><font face ='Calibri';font size='6'>")
                          + QStringLiteral("&nbsp;").repeated(8) + tr("Calibration Protocol")
                          + QStringLiteral("</font></h1>");
    const QString subtitle = QStringLiteral("<h1><b><font face ='Calibri';font size='3'>")
                             + QStringLiteral("&nbsp;").repeated(18) + tr("Laser Distance Sensor Triangulation")
                             + QStringLiteral("</b></font></h1>");

    // Printer resolution, not high resolution: the page is laid out in
    // document pixels and scaled onto A4 by QTextDocument::print(). The output
    // format comes first, so that a file name without ".pdf" still gives a PDF.
    QPrinter printer(QPrinter::PrinterResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setOutputFileName(fileName);
    // Full page: print() scales the 665 x 895 page over the whole sheet, so
    // the letter paper reaches the edges and the left margin moves nothing.
    printer.setFullPage(true);
    printer.setPageMargins(QMarginsF(50, 0, 0, 0), QPageLayout::Millimeter);

    QTextEdit editor;
    editor.hide();
    QTextDocument *document = editor.document();
    document->setDocumentMargin(0);
    document->setDefaultStyleSheet(QStringLiteral(
        "body{ background-image: url(:/newPrefix/icons/Velmora_business-paper.png); background-repeat: no-repeat; "
        "background-size: auto;}"));
    document->setHtml(QStringLiteral("<body></body>"));
    document->setPageSize(QSizeF(665, 895));

    QTextCursor cursor(document);
    const QTextCharFormat textFormat = cursor.charFormat();
    auto toEnd = [&cursor]() { cursor.movePosition(QTextCursor::End); };
    auto lineBreak = [&]() {
        toEnd();
        cursor.insertBlock(QTextBlockFormat(), textFormat);
    };
    auto text = [&](const QString &line) {
        toEnd();
        cursor.insertText(line, textFormat);
    };

    toEnd();
    cursor.insertHtml(QStringLiteral("<br><br><br>"));
    cursor.insertHtml(title);
    lineBreak();
    toEnd();
    cursor.insertHtml(subtitle);
    lineBreak();

    // Who: the sensor and its supplier.
    toEnd();
    QTextTable *identity = cursor.insertTable(3, 2, tableFormat(400, 3, 40, false));
    setCellText(identity, 0, 0, tr("Serial Number: "));
    setCellText(identity, 0, 1, serialNumber);
    setCellText(identity, 1, 0, tr("Order Number: "));
    setCellText(identity, 1, 1, orderNumber);
    setCellText(identity, 2, 0, tr("Supplier: "));
    setCellText(identity, 2, 1, d->vendorName);

    // The calibration curve, drawn without the plot's background so that the
    // letter paper shows through.
    toEnd();
    QTextTable *curve = cursor.insertTable(1, 1, tableFormat(400, 3, 20, false));
    if (!image.isNull()) {
        QPainter painter(&image);
        QwtPlotRenderer renderer;
        renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
        renderer.render(d->plot, &painter, QRectF(image.rect()));
        painter.end();
        curve->cellAt(0, 0).firstCursorPosition().insertImage(image);
    }

    lineBreak();
    text(Indent + tr("Measurement Conditions"));
    lineBreak();

    toEnd();
    QTextTable *conditions = cursor.insertTable(5, 2, tableFormat(450, 2, 40, true));
    const QString rows[5][2] = {
        {tr("Working Range"), workingRange},
        {tr("Linearity Deviation"), linearityDeviation},
        {tr("Measured Surface"), tr("White (90%) lambertian")},
        {tr("Filter"), tr("3 (default)")},
        {tr("Sensor warmed up"), tr(">5min")},
    };
    for (int row = 0; row < 5; ++row) {
        setCellText(conditions, row, 0, rows[row][0]);
        setCellText(conditions, row, 1, rows[row][1]);
        setCellBackground(conditions, row, 0, Qt::lightGray);
        setCellBackground(conditions, row, 1, Qt::white);
    }

    lineBreak();
    lineBreak();
    text(Indent + tr("Differences of these Data can appear because of: "));
    toEnd();
    QTextTable *differences = cursor.insertTable(5, 2, tableFormat(500, 1, 40, false));
    const QString causes[5] = {
        tr("-  Target material and surface"),
        tr("-  Sensor mounting (tilt)"),
        tr("-  Temperature fluctuation during the measurement"),
        tr("-  Circulation of warm air between sensor and target"),
        tr("-  Ambient light"),
    };
    for (int row = 0; row < 5; ++row)
        setCellText(differences, row, 0, causes[row]);

    lineBreak();
    text(Indent + tr("Document was created electronically and thus valid without signature "));
    lineBreak();
    text(Indent + tr("Inspector: ") + d->vendorName);
    lineBreak();
    // The day the protocol is written, not the day of the measurement.
    text(Indent + tr("Date: ") + QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));

    // The hidden editor lays its document out to its own width whenever the
    // content changes, which drops the page size set above; without it the
    // page would be printed unpaginated (reflowed, with a page number).
    document->setPageSize(QSizeF(665, 895));
    document->print(&printer);
}

} // namespace Utils
