// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotdocument.h"

#include "filedialogdriver.h"
#include "imagechecks.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <QAbstractButton>
#include <QPrintDialog>
#include <QtTest>

#include <memory>

namespace {

const QColor CanvasColour(255, 200, 0);
const QColor CurveColour(220, 0, 0);
const QString PlotTitle = QStringLiteral("Distance\nrun 3");

//! Standard output of an outside reader (poppler), or a failure note.
QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return QStringLiteral("<%1 failed: %2>").arg(program, QString::fromLocal8Bit(process.readAllStandardError()));
    return QString::fromUtf8(process.readAllStandardOutput());
}

//! The value of one pdfinfo field ("Title", "Creator", "Page size", ...).
QString pdfInfo(const QString &pdf, const QString &field)
{
    const QRegularExpression line(QStringLiteral("^%1:\\s+(.*)$").arg(field), QRegularExpression::MultilineOption);
    return line.match(run(QStringLiteral("pdfinfo"), { pdf })).captured(1).trimmed();
}

//! The first page's size in points.
QSizeF pageSize(const QString &pdf)
{
    const QStringList parts = pdfInfo(pdf, QStringLiteral("Page size")).split(QLatin1Char(' ')); // "w x h pts"
    return QSizeF(parts.value(0).toDouble(), parts.value(2).toDouble());
}

bool similar(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) < 40 && qAbs(a.green() - b.green()) < 40 && qAbs(a.blue() - b.blue()) < 40;
}

int countPixels(const QImage &image, const QColor &colour)
{
    return TestSupport::countPixels(image, image.rect(), [&colour](const QColor &c) { return similar(c, colour); });
}

} // namespace

class tst_PlotDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_plot = new QwtPlot(PlotTitle);
        m_plot->setCanvasBackground(CanvasColour);
        m_plot->setAxisScale(QwtPlot::xBottom, 0.0, 10.0);
        m_plot->setAxisScale(QwtPlot::yLeft, 0.0, 10.0);
        auto *curve = new QwtPlotCurve;
        curve->setPen(CurveColour, 4.0);
        curve->setSamples(QVector<double> { 0.0, 5.0, 10.0 }, QVector<double> { 1.0, 9.0, 1.0 });
        curve->attach(m_plot);
        m_plot->resize(600, 400);
        m_plot->replot();
    }

    void cleanup()
    {
        delete m_plot;
        m_dir.reset();
    }

    void exportDocument_data()
    {
        QTest::addColumn<QString>("fileName"); // empty: the dialog is cancelled
        QTest::addColumn<bool>("plotGone");
        QTest::addColumn<QString>("written"); // what the file must be; empty: nothing is written

        QTest::newRow("pdf") << "chart.pdf" << false << "pdf";
        QTest::newRow("svg") << "chart.svg" << false << "svg";
        QTest::newRow("png") << "chart.png" << false << "png";
        // Qwt writes PostScript only on Qt 4: the filter stays, the export warns.
        QTest::newRow("postscript writes nothing") << "chart.ps" << false << "";
        QTest::newRow("cancelled") << "" << false << "";
        QTest::newRow("plot deleted: no dialog") << "" << true << "";
    }

    void exportDocument()
    {
        QFETCH(QString, fileName);
        QFETCH(bool, plotGone);
        QFETCH(QString, written);

        Utils::PlotDocument document(m_plot);
        if (plotGone) {
            delete m_plot;
            // Not one of the operations may open a dialog now. A dialog would be
            // found at once; the watch ends before the next test's dialogs come.
            auto shown = TestSupport::whenModal<QDialog>([](QDialog *dialog) { dialog->reject(); }, 200);
            document.vExportDocument();
            document.vPrintDocument();
            document.vExportPdfCalibration(QImage(100, 100, QImage::Format_ARGB32), "1", "2", "3", "4");
            QTest::qWait(300);
            QVERIFY(!*shown);
            QVERIFY(QDir(m_dir->path()).isEmpty());
            return;
        }

        QString caption, proposed;
        QStringList filters;
        auto inspect = [&](QFileDialog *dialog) {
            caption = dialog->windowTitle();
            proposed = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
            filters = dialog->nameFilters();
        };
        const QString path = m_dir->filePath(fileName);
        auto shown = fileName.isEmpty() ? TestSupport::cancelFileDialog(inspect)
                                        : TestSupport::answerFileDialog(path, inspect);
        if (fileName.endsWith(QLatin1String(".ps")))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no file written to .*chart\\.ps")));
        document.vExportDocument();

        QVERIFY(*shown);
        QCOMPARE(caption, QStringLiteral("Export File Name"));
        QCOMPARE(proposed, QStringLiteral("chart.pdf"));
        QCOMPARE(filters.mid(0, 3),
            QStringList({ QStringLiteral("PDF Documents (*.pdf)"), QStringLiteral("SVG Documents (*.svg)"),
                QStringLiteral("Postscript Documents (*.ps)") }));
        QVERIFY2(filters.value(3).startsWith(QLatin1String("Images (*.")) && filters.value(3).contains(" *.png"),
            qPrintable(filters.value(3)));

        if (written.isEmpty()) {
            QVERIFY(QDir(m_dir->path()).isEmpty());
            return;
        }
        if (written == QLatin1String("pdf")) {
            // 300 x 200 mm, in points.
            const QSizeF size = pageSize(path);
            QVERIFY2(qAbs(size.width() - 850.4) < 1.0 && qAbs(size.height() - 566.9) < 1.0,
                qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())));
            QVERIFY(
                run(QStringLiteral("pdftotext"), { path, QStringLiteral("-") }).contains(QLatin1String("Distance")));
        } else if (written == QLatin1String("svg")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QXmlStreamReader xml(&file);
            QVERIFY(xml.readNextStartElement());
            QCOMPARE(xml.name().toString(), QStringLiteral("svg"));
            while (!xml.atEnd())
                xml.readNext();
            QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        } else {
            // 300 x 200 mm at 85 dpi, with the plot's canvas and curve on it.
            const QImage image(path);
            QVERIFY(qAbs(image.width() - 1004) <= 1 && qAbs(image.height() - 669) <= 1);
            QVERIFY(countPixels(image, CanvasColour) > image.width() * image.height() / 3);
            QVERIFY(countPixels(image, CurveColour) > 1000);
        }
    }

    void calibrationProtocol()
    {
        Utils::PlotDocument document(m_plot);
        document.setVendorName(QStringLiteral("Example Sensors Ltd."));
        QImage image(560, 220, QImage::Format_ARGB32);
        image.fill(Qt::white);

        // Whatever extension the user types, the protocol is a PDF.
        const QString path = m_dir->filePath(QStringLiteral("protocol.dat"));
        QString proposed;
        auto shown = TestSupport::answerFileDialog(path, [&](QFileDialog *dialog) {
            proposed = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
        });
        const QDate before = QDate::currentDate();
        document.vExportPdfCalibration(image, QStringLiteral("SN 4711-0815"), QStringLiteral("LDS-300-T"),
            QStringLiteral("30 ... 300 mm"), QStringLiteral("0.12 %"));
        const QDate after = QDate::currentDate();
        QVERIFY(*shown);
        QCOMPARE(proposed, QStringLiteral("Calibration_Protocol.pdf"));

        QVERIFY(pdfInfo(path, QStringLiteral("Page size")).endsWith(QLatin1String("(A4)")));
        QCOMPARE(pdfInfo(path, QStringLiteral("Pages")), QStringLiteral("1"));
        // Each label beside its value, as the page's layout puts them; pdftotext
        // gives ligatures as one character and blanks as it sees fit.
        QString text = run(QStringLiteral("pdftotext"), { QStringLiteral("-layout"), path, QStringLiteral("-") });
        text.replace(QChar(0xFB00), QLatin1String("ff"))
            .replace(QChar(0xFB01), QLatin1String("fi"))
            .replace(QChar(0xFB02), QLatin1String("fl"));
        text = text.simplified();
        const QStringList expected { "Calibration Protocol Laser Distance Sensor Triangulation",
            "Serial Number: SN 4711-0815", "Order Number: LDS-300-T", "Supplier: Example Sensors Ltd.",
            "Measurement Conditions", "Working Range 30 ... 300 mm", "Linearity Deviation 0.12 %",
            "Measured Surface White (90%) lambertian", "Filter 3 (default)", "Sensor warmed up >5min",
            "Differences of these Data can appear because of: - Target material and surface", "- Ambient light",
            "Document was created electronically and thus valid without signature", "Inspector: Example Sensors Ltd." };
        for (const QString &line : expected)
            QVERIFY2(text.contains(line), qPrintable(line + QStringLiteral(" missing from:\n") + text));
        QVERIFY2(text.contains("Date: " + before.toString("dd.MM.yyyy"))
                || text.contains("Date: " + after.toString("dd.MM.yyyy")),
            qPrintable(text));

        // A cancelled dialog leaves the folder as it was.
        auto cancelled = TestSupport::cancelFileDialog();
        document.vExportPdfCalibration(image, "1", "2", "3", "4");
        QVERIFY(*cancelled);
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList { QStringLiteral("protocol.dat") });
    }

    void printDocument_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::addColumn<bool>("greyScale");
        QTest::addColumn<QColor>("middle"); // of the page, on the canvas

        QTest::newRow("accepted in colour") << true << false << CanvasColour;
        QTest::newRow("accepted in grey scale: no canvas background") << true << true << QColor(Qt::white);
        QTest::newRow("rejected") << false << false << QColor();
    }

    void printDocument()
    {
        QFETCH(bool, accept);
        QFETCH(bool, greyScale);
        QFETCH(QColor, middle);

        Utils::PlotDocument document(m_plot);
        const QString path = m_dir->filePath(QStringLiteral("printed.pdf"));
        auto shown = TestSupport::whenModal<QPrintDialog>([=](QPrintDialog *dialog) {
            // The dialog sets up its printer from its own fields when accepted:
            // "Print to File (PDF)" with the name typed here.
            dialog->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(path);
            dialog->findChild<QAbstractButton *>(greyScale ? "grayscale" : "color")->setChecked(true);
            if (accept)
                dialog->accept();
            else
                dialog->reject();
        });
        document.vPrintDocument();
        QVERIFY(*shown);

        if (!accept) {
            QVERIFY(QDir(m_dir->path()).isEmpty());
            return;
        }
        QCOMPARE(pdfInfo(path, QStringLiteral("Title")), QStringLiteral("Distance -- run 3"));
        QCOMPARE(pdfInfo(path, QStringLiteral("Creator")), QStringLiteral("Quenda"));
        const QSizeF size = pageSize(path);
        QVERIFY2(size.width() > size.height(), "landscape");
        run(QStringLiteral("pdftoppm"), { "-r", "20", "-png", "-singlefile", path, path });
        const QImage page(path + QStringLiteral(".png"));
        const QColor seen = page.pixelColor(page.width() / 2, page.height() / 2);
        QVERIFY2(!page.isNull() && similar(seen, middle), qPrintable(seen.name()));
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QPointer<QwtPlot> m_plot;
};

QTEST_MAIN(tst_PlotDocument)
#include "tst_plotdocument.moc"
