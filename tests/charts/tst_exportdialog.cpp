// SPDX-License-Identifier: LGPL-2.1-or-later
// The value series of the charts and its CSV export.
#include <charts/exportdialog.h>
#include <charts/valueovertime.h>

#include "filedialogdriver.h"
#include "testhelpers.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

#include <limits>
#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using Utils::ExportDialog;
using Utils::ValueOverTime;

namespace {

using Samples = QVector<QPointF>; // (x, y)
using SeriesList = QVector<Samples>;

const QString timeFormat = QStringLiteral("dd-MM-yyyy hh:mm:ss.zzz");
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

//! Reaches the protected steps of the export.
class Probe : public ExportDialog
{
public:
    using ExportDialog::bSaveToFile;
    using ExportDialog::ExportDialog;
    using ExportDialog::oExportData;
};

//! The series a dialog exports, and the list it is given.
struct Columns
{
    explicit Columns(const SeriesList &samples)
    {
        for (const Samples &points : samples) {
            owned.emplace_back(new ValueOverTime);
            for (const QPointF &point : points)
                owned.back()->vAppend(point.y(), point.x());
            list << owned.back().get();
        }
    }
    std::vector<std::unique_ptr<ValueOverTime>> owned;
    QList<const ValueOverTime *> list;
};

//! Local time in ms since the epoch.
double at(int day, int month, int year, int hour, int minute, int second, int ms)
{
    return double(QDateTime(QDate(year, month, day), QTime(hour, minute, second, ms)).toMSecsSinceEpoch());
}

const double T = at(13, 11, 2026, 18, 13, 5, 250);

template <typename T> T *child(QWidget *dialog, const char *name)
{
    auto *widget = dialog->findChild<T *>(QLatin1String(name));
    if (!widget)
        qFatal("no %s", name);
    return widget;
}

/*!
    Clicks the separator boxes into the state \a boxes names (t tab, c comma,
    s semicolon, p space, o other) and types \a other into the free field.
*/
void chooseSeparators(QWidget *dialog, const QString &boxes, const QString &other)
{
    auto *field = child<QLineEdit>(dialog, "LN_Other");
    field->setText(other);
    const std::pair<const char *, QChar> map[]
        = { { "CB_Tab", 't' }, { "CB_Comma", 'c' }, { "CB_Semicolon", 's' }, { "CB_Space", 'p' }, { "CB_Other", 'o' } };
    for (const auto &entry : map) {
        auto *box = child<QCheckBox>(dialog, entry.first);
        if (box->isChecked() == boxes.contains(entry.second))
            continue;
        QStyleOptionButton option;
        option.initFrom(box);
        const QRect indicator = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, indicator.center());
    }
}

//! What the time cell must read: QDateTime's local time is the reference.
QString qtTime(double ms)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(ms)).toString(timeFormat);
}

Samples samplesOf(const double *x, const double *y, int count)
{
    Samples samples;
    for (int i = 0; i < count; ++i)
        samples << QPointF(x[i], y[i]);
    return samples;
}

//! Connected by text signature, as a plot's curves are; keeps what each call showed.
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(ValueOverTime &series)
    {
        connected = connect(&series, SIGNAL(vDataUpdated(const double *, const double *, const int)), this,
            SLOT(record(const double *, const double *, int)));
    }
    bool connected = false;
    QVector<const double *> xs;
    QVector<Samples> shown;

public Q_SLOTS:
    void record(const double *x, const double *y, int count)
    {
        xs << x;
        shown << samplesOf(x, y, count);
    }
};

//! A change made to a filled series; none where the row only appends.
using Edit = void (*)(ValueOverTime &);

} // namespace

Q_DECLARE_METATYPE(Samples)
Q_DECLARE_METATYPE(SeriesList)
Q_DECLARE_METATYPE(Edit)

class tst_ExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void texts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");

        const auto row = [](const char *name, const char *property, const char *english, const char *german) {
            QTest::newRow(name) << name << QByteArray(property) << QString::fromUtf8(english)
                                << QString::fromUtf8(german);
        };
        row("ExportDialog", "windowTitle", "Dialog", "Dialog");
        row("GB_Separator", "title", "Separated by", "Getrennt durch");
        row("CB_Tab", "text", "Tab", "Tabulator");
        row("CB_Semicolon", "text", "Semicolon", "Semikolon");
        row("CB_Space", "text", "Space", "Leerzeichen");
        row("CB_Comma", "text", "Comma", "Komma");
        row("CB_Other", "text", "Other", "Andere");
        row("GB_Location", "title", "Location", "Speicherort");
        row("PB_Select", "text", "Select", "Auswählen");
        row("GB_OutputPreview", "title", "Output Preview", "Ausgabevorschau");
        row("TB_OutputPreview", "plainText", "\n", "\n");
    }

    void texts()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, property);
        QFETCH(QString, english);
        QFETCH(QString, german);

        Columns columns(SeriesList {});
        QList<QString> headers;
        ExportDialog dialog(&columns.list, &headers);
        QWidget *widget = name == dialog.objectName() ? &dialog : dialog.findChild<QWidget *>(name);
        QVERIFY(widget);
        QCOMPARE(widget->property(property).toString(), english);
        {
            TestSupport::GermanTranslation translation;
            QVERIFY(translation.isLoaded());
            QTRY_COMPARE(widget->property(property).toString(), german);
        }
        QTRY_COMPARE(widget->property(property).toString(), english);
    }

    void csvText_data()
    {
        QTest::addColumn<SeriesList>("series");
        QTest::addColumn<QStringList>("headers");
        QTest::addColumn<QString>("boxes");
        QTest::addColumn<QString>("other");
        QTest::addColumn<int>("precision");
        QTest::addColumn<QByteArray>("expected");

        const auto row = [](const char *name, const SeriesList &series, const QStringList &headers, const char *boxes,
                             const QString &other, int precision, const char *expected) {
            QTest::newRow(name) << series << headers << boxes << other << precision << QByteArray(expected);
        };
        const QStringList two { "Distance", "Signal" };
        row("two series, semicolon, 2 decimals", { { { T, 12.5 } }, { { T, 7.0 } } }, two, "s", "", 2,
            "Distance;Signal\n13-11-2026 18:13:05.250;12.50;7.00\n");
        row("time truncated to whole ms", { { { T + 0.999, 1 }, { T + 999.9, 2 } } }, {}, "c", "", 0,
            "\n13-11-2026 18:13:05.250,1\n13-11-2026 18:13:06.249,2\n");
        row("-1000 in series 0 leaves the row out",
            { { { T, 1 }, { T + 1000, -1000 }, { T + 2000, 3 } }, { { T, 10 }, { T + 1000, 20 }, { T + 2000, 30 } } },
            two, "c", "", 0, "Distance,Signal\n13-11-2026 18:13:05.250,1,10\n13-11-2026 18:13:07.250,3,30\n");
        row("-1000 elsewhere is a value", { { { T, -1500 } }, { { T, -1000 } } }, two, "c", "", 1,
            "Distance,Signal\n13-11-2026 18:13:05.250,-1500.0,-1000.0\n");
        row("shorter series leave empty cells",
            { { { T, 1 }, { T + 1000, 2 }, { T + 2000, 3 } }, { { T, 4 } }, { { T, 5 }, { T + 1000, 6 } } },
            { "a", "b", "c" }, "c", "", 0,
            "a,b,c\n13-11-2026 18:13:05.250,1,4,5\n13-11-2026 18:13:06.250,2,,6\n13-11-2026 18:13:07.250,3,,\n");
        row("series 0 decides the rows", { { { T, 1 } }, { { T, 4 }, { T + 1000, 5 } } }, two, "c", "", 0,
            "Distance,Signal\n13-11-2026 18:13:05.250,1,4\n");
        row("more titles than series", { { { T, 1 } } }, { "a", "b", "c" }, "s", "", 0,
            "a;b;c\n13-11-2026 18:13:05.250;1\n");
        row("UTF-8 titles", { { { T, 1 } } }, { "Höhe", "µm" }, "c", "", 0, "Höhe,µm\n13-11-2026 18:13:05.250,1\n");
        row("no separator", { { { T, 1 } }, { { T, 2 } } }, two, "", "", 0,
            "DistanceSignal\n13-11-2026 18:13:05.25012\n");
        row("all separators in fixed order", { { { T, 1 } }, { { T, 2 } } }, two, "opstc", "|", 0,
            "Distance\t,; |Signal\n13-11-2026 18:13:05.250\t,; |1\t,; |2\n");
        row("other text through Latin-1", { { { T, 1 } } }, {}, "o", QString::fromUtf8("€§"), 0,
            "\n13-11-2026 18:13:05.250?§1\n");
        row("other text unused when unchecked", { { { T, 1 } } }, {}, "c", "|", 0, "\n13-11-2026 18:13:05.250,1\n");
        row("non-finite values", { { { T, kNaN } }, { { T, kInf } }, { { T, -kInf } } }, {}, "c", "", 2,
            "\n13-11-2026 18:13:05.250,nan,inf,-inf\n");
        row("non-finite or huge times", { { { kNaN, 1 }, { kInf, 2 }, { -1e19, 3 } } }, {}, "c", "", 0,
            "\n,1\n,2\n,3\n");
    }

    void csvText()
    {
        QFETCH(SeriesList, series);
        QFETCH(QStringList, headers);
        QFETCH(QString, boxes);
        QFETCH(QString, other);
        QFETCH(int, precision);
        QFETCH(QByteArray, expected);

        Columns columns(series);
        QList<QString> titles = headers;
        Probe dialog(&columns.list, &titles);
        QVERIFY(TestSupport::show(&dialog, dialog.sizeHint()));
        chooseSeparators(&dialog, boxes, other);
        dialog.setPrecision(precision);

        QCOMPARE(dialog.oExportData(0, -1), expected);
        // All of these fit the preview, which follows every change of the form.
        QCOMPARE(child<QTextEdit>(&dialog, "TB_OutputPreview")->toPlainText(), QString::fromUtf8(expected));
    }

    void numberFormat_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("precision");

        QTest::newRow("negative") << -123.456 << 3;
        QTest::newRow("tie away from zero, not to even") << 0.125 << 2;
        QTest::newRow("tie without decimals") << 2.5 << 0;
        QTest::newRow("negative half") << -0.5 << 0;
        QTest::newRow("tie carrying into a new digit") << 9.5 << 0;
        QTest::newRow("negative tie carrying") << -99.5 << 0;
        QTest::newRow("tie at 4 decimals with carry") << 9.96875 << 4;
        QTest::newRow("tie above 2^52") << 4503599627370496.5 << 0;
        QTest::newRow("negative zero") << -0.0 << 3;
        QTest::newRow("small negative to zero") << -0.0001 << 3;
        QTest::newRow("large") << 1e300 << 3;
        QTest::newRow("smallest subnormal") << std::numeric_limits<double>::denorm_min() << 3;
        QTest::newRow("17 decimals") << 0.1 << 17;
        QTest::newRow("negative precision means 6") << 1.0 / 3.0 << -1;
        QTest::newRow("all decimals of the smallest subnormal") << std::numeric_limits<double>::denorm_min() << 1074;
        QTest::newRow("tie at the last decimal a double has") << std::numeric_limits<double>::denorm_min() << 1073;
    }

    void numberFormat()
    {
        QFETCH(double, value);
        QFETCH(int, precision);

        Columns columns(SeriesList { { { T, value } } });
        QList<QString> headers;
        Probe dialog(&columns.list, &headers);
        dialog.setPrecision(precision);
        QCOMPARE(dialog.oExportData(0, -1),
            "\n13-11-2026 18:13:05.250," + QString::number(value, 'f', precision).toLatin1() + '\n');
    }

    void localTime_data()
    {
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("step");

        // Central European time. The zones' own rules are tst_localtime's; here
        // the export's reuse of one second's text and its reading of the zone.
        QTest::newRow("spring forward") << 1774745998000.0 - 0.5 << 250.5;
        QTest::newRow("before 1970") << -1500.75 << 250.0;
        QTest::newRow("across 2038") << 2145916798000.0 << 250.0;
    }

    void localTime()
    {
        QFETCH(double, start);
        QFETCH(double, step);

        const TestSupport::Zone inZone("CET-1CEST,M3.5.0,M10.5.0/3");
        Samples samples;
        QStringList expected { QString() };
        for (int i = 0; i < 24; ++i) {
            samples << QPointF(start + i * step, double(i));
            expected << qtTime(start + i * step) + QLatin1Char(',') + QString::number(i);
        }
        expected << QString();
        Columns columns(SeriesList { samples });
        QList<QString> headers;
        Probe dialog(&columns.list, &headers);
        QCOMPARE(QString::fromLatin1(dialog.oExportData(0, -1)).split(QLatin1Char('\n')), expected);
    }

    void rows_data()
    {
        QTest::addColumn<int>("samples");
        QTest::addColumn<int>("skipped"); // the sample whose value is -1000
        QTest::addColumn<int>("first"); // with last: the rows passed to oExportData
        QTest::addColumn<int>("last"); // both -2: the preview
        QTest::addColumn<QList<int>>("shown");

        const QList<int> ten { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 };
        QTest::newRow("preview of ten: all") << 10 << -1 << -2 << -2 << ten;
        QTest::newRow("preview of eleven: the first ten") << 11 << -1 << -2 << -2 << ten;
        // Ten samples, not ten lines: a left-out row is not made up for.
        QTest::newRow("preview with a -1000 row") << 11 << 3 << -2 << -2 << QList<int> { 0, 1, 2, 4, 5, 6, 7, 8, 9 };
        QTest::newRow("first below 0") << 3 << -1 << -5 << 2 << QList<int> { 0, 1 };
        QTest::newRow("last past the end") << 3 << -1 << 1 << 100 << QList<int> { 1, 2 };
        QTest::newRow("first past last") << 3 << -1 << 2 << 1 << QList<int>();
        QTest::newRow("any negative last means all") << 3 << 1 << -1 << -7 << QList<int> { 0, 2 };
    }

    void rows()
    {
        QFETCH(int, samples);
        QFETCH(int, skipped);
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(QList<int>, shown);

        Samples points;
        for (int i = 0; i < samples; ++i)
            points << QPointF(T + 1000.0 * i, i == skipped ? -1000.0 : double(i));
        Columns columns(SeriesList { points });
        QList<QString> headers { QStringLiteral("Value") };
        Probe dialog(&columns.list, &headers);

        QString expected = QStringLiteral("Value\n");
        for (int i : shown)
            expected += qtTime(T + 1000.0 * i) + QLatin1Char(',') + QString::number(i) + QLatin1Char('\n');
        if (first == -2)
            QCOMPARE(child<QTextEdit>(&dialog, "TB_OutputPreview")->toPlainText(), expected);
        else
            QCOMPARE(QString::fromLatin1(dialog.oExportData(first, last)), expected);
    }

    void withoutDataAcceptsAtOnce()
    {
        ExportDialog dialog(nullptr, nullptr);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // Shown by a host all the same, it ends by itself.
        QTimer::singleShot(5000, &dialog, &QDialog::reject);
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    }

    void saveThroughDialog()
    {
        const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
        if (python.isEmpty())
            QSKIP("python3 is not installed; tools/install-deps.sh installs it");
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(QStringLiteral("values.csv"));
        {
            QFile old(path); // replaced after the overwrite question
            QVERIFY(old.open(QIODevice::WriteOnly));
            old.write("old content that is longer than nothing\n");
        }

        Columns columns(SeriesList {
            { { T, 1.25 }, { T + 500, 0.125 }, { T + 1000, -1000 }, { T + 1500.9, -2 }, { T + 2000, kNaN } },
            { { T, 10 }, { T + 500, 20 }, { T + 1000, 30 }, { T + 1500, 40 }, { T + 2000, 50 } },
            { { T, -0.001 }, { T + 500, 1e6 } } });
        QList<QString> headers { "Distance", "Signal", "Höhe" };
        ExportDialog dialog(&columns.list, &headers);
        dialog.setPrecision(2);

        const QString proposed
            = QStringLiteral("export-%1.csv").arg(QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")));
        QStringList seen; // by the driver, compared once the dialog is closed
        auto driven = TestSupport::whenModal<ExportDialog>([&](ExportDialog *shown) {
            chooseSeparators(shown, QStringLiteral("s"), QString());
            auto *buttons = child<QDialogButtonBox>(shown, "buttonBox");
            seen << QString::number(buttons->isEnabled()); // not even Cancel before a file is chosen
            TestSupport::answerFileDialog(path, [&](QFileDialog *files) {
                seen << files->windowTitle() << QString::number(files->acceptMode()) << files->nameFilters()
                     << files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
            });
            QTest::mouseClick(child<QPushButton>(shown, "PB_Select"), Qt::LeftButton);
            seen << child<QLineEdit>(shown, "LE_Location")->text() << QString::number(buttons->isEnabled());
            QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(*driven);
        QCOMPARE(seen,
            (QStringList {
                "0", "Save As...", QString::number(QFileDialog::AcceptSave), "*.csv", proposed, path, "1" }));

        QProcess reader;
        reader.start(python, { QStringLiteral(UTILS_READCSV_SCRIPT), path, QStringLiteral(";") });
        QVERIFY(reader.waitForFinished(30000));
        QCOMPARE(reader.exitCode(), 0);
        const QJsonArray rows = QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
        const QList<QStringList> expected {
            { "Distance", "Signal", "Höhe" },
            { qtTime(T), "1.25", "10.00", "-0.00" },
            { qtTime(T + 500), "0.13", "20.00", "1000000.00" },
            { qtTime(T + 1500), "-2.00", "40.00", "" },
            { qtTime(T + 2000), "nan", "50.00", "" },
        };
        QCOMPARE(rows.size(), expected.size());
        for (int r = 0; r < expected.size(); ++r) {
            QStringList cells;
            for (const QJsonValue &cell : rows.at(r).toArray())
                cells << cell.toString();
            QCOMPARE(cells, expected.at(r));
        }
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList { QStringLiteral("values.csv") });
    }

    void saveFailure_data()
    {
        QTest::addColumn<QString>("name"); // relative to a fresh folder; empty: no file chosen
        QTest::addColumn<bool>("limitFileSize");

        QTest::newRow("no file chosen") << QString() << false;
        QTest::newRow("folder missing") << QStringLiteral("missing/values.csv") << false;
        QTest::newRow("write fails part-way") << QStringLiteral("values.csv") << true;
    }

    void saveFailure()
    {
        QFETCH(QString, name);
        QFETCH(bool, limitFileSize);

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QByteArray old = "kept\n";
        QFile kept(dir.filePath(QStringLiteral("values.csv")));
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write(old) == old.size());
        kept.close();
        Samples samples;
        for (int i = 0; i < 5000; ++i)
            samples << QPointF(T + i, i);
        Columns columns(SeriesList { samples });
        QList<QString> headers { QStringLiteral("Value") };
        Probe dialog(&columns.list, &headers);
        if (!name.isEmpty()) {
            auto answered = TestSupport::answerFileDialog(dir.filePath(name));
            dialog.vSelectFileDialog();
            QVERIFY(*answered);
            QCOMPARE(dialog.fileName(), dir.filePath(name));
        }

        bool saved = true;
        if (limitFileSize) {
#ifdef Q_OS_UNIX
            // A full disk, even for root: writes past 4 KiB fail.
            rlimit previous {};
            QCOMPARE(getrlimit(RLIMIT_FSIZE, &previous), 0);
            rlimit small = previous;
            small.rlim_cur = 4096;
            const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
            saved = dialog.bSaveToFile(dialog.oExportData(0, -1));
            setrlimit(RLIMIT_FSIZE, &previous);
            std::signal(SIGXFSZ, oldHandler);
#else
            QSKIP("file size limits are a POSIX feature");
#endif
        } else {
            saved = dialog.bSaveToFile(dialog.oExportData(0, -1));
        }
        QVERIFY(!saved);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), old);
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList { QStringLiteral("values.csv") });
    }

    void appendAndEdit_data()
    {
        QTest::addColumn<Samples>("appended");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<Samples>("stored");
        QTest::addColumn<int>("emitted");

        const auto row = [](const char *name, const Samples &appended, Edit edit, const Samples &stored, int emitted) {
            QTest::newRow(name) << appended << edit << stored << emitted;
        };
        const QPointF a(1000, 5);
        const Samples five { { 10, 1 }, { 20, 2 }, { 30, 3 }, { 40, 4 }, { 50, 5 } };
        Samples replaced = five;
        replaced[0] = QPointF(0.0, 9.0); // 0.0 is not "now" here
        row("exact repeat dropped", { a, a }, nullptr, { a }, 1);
        row("same time, other value", { a, { 1000, 6 } }, nullptr, { a, { 1000, 6 } }, 2);
        row("same value, other time", { a, { 1001, 5 } }, nullptr, { a, { 1001, 5 } }, 2);
        row("repeat of an older sample", { a, { 2000, 6 }, a }, nullptr, { a, { 2000, 6 }, a }, 3);
        row("-0.0 repeats 0.0", { { 7, 0.0 }, { 7, -0.0 } }, nullptr, { { 7, 0.0 } }, 1);
        row("time going backwards", { a, { 10, 5 } }, nullptr, { a, { 10, 5 } }, 2);
        row("erase fewer than held", five, [](ValueOverTime &s) { s.vEraseFirstValues(2); }, five.mid(2), 5);
        row("erase all held", five, [](ValueOverTime &s) { s.vEraseFirstValues(5); }, Samples(), 5);
        row("erase more than held", five, [](ValueOverTime &s) { s.vEraseFirstValues(6); }, five, 5);
        row("erase negative", five, [](ValueOverTime &s) { s.vEraseFirstValues(-2); }, five, 5);
        row("remove middle", five, [](ValueOverTime &s) { s.vRemove(2); }, { five[0], five[1], five[3], five[4] }, 6);
        row("remove past the end", five, [](ValueOverTime &s) { s.vRemove(5); }, five, 5);
        row("remove negative", five, [](ValueOverTime &s) { s.vRemove(-1); }, five, 5);
        row("replace first", five, [](ValueOverTime &s) { s.vReplace(0, 9.0, 0.0); }, replaced, 6);
        row("replace past the end", five, [](ValueOverTime &s) { s.vReplace(5, 9.0, 0.0); }, five, 5);
        row("clear", five, [](ValueOverTime &s) { s.vClear(); }, Samples(), 6);
        row("clear empty", Samples(), [](ValueOverTime &s) { s.vClear(); }, Samples(), 0);
    }

    void appendAndEdit()
    {
        QFETCH(Samples, appended);
        QFETCH(Edit, edit);
        QFETCH(Samples, stored);
        QFETCH(int, emitted);

        ValueOverTime series;
        Recorder recorder(series);
        QVERIFY(recorder.connected);
        for (const QPointF &sample : appended)
            series.vAppend(sample.y(), sample.x());
        const int appendsShown = recorder.shown.size();
        if (edit)
            edit(series);

        QCOMPARE(samplesOf(series.pxData(), series.pyData(), series.size()), stored);
        QCOMPARE(series.pxData() == nullptr, stored.isEmpty());
        QCOMPARE(series.pyData() == nullptr, stored.isEmpty());
        QCOMPARE(series.oFirst(), stored.isEmpty() ? QPointF() : stored.first());
        QCOMPARE(series.oLast(), stored.isEmpty() ? QPointF() : stored.last());
        QCOMPARE(series.s64Range(), stored.isEmpty() ? 0.0 : stored.last().x() - stored.first().x());
        QCOMPARE(recorder.shown.size(), emitted);
        // The last call shows the series as it is now, unless an erase (which is not told) changed it.
        if (emitted > 0 && (!edit || emitted > appendsShown || recorder.shown.last() == stored)) {
            QCOMPARE(recorder.shown.last(), stored);
            QCOMPARE(recorder.xs.last(), series.pxData());
        }
    }

    void timeZeroIsNow_data()
    {
        QTest::addColumn<double>("time");
        QTest::addColumn<bool>("now");

        QTest::newRow("0.0") << 0.0 << true;
        QTest::newRow("-0.0") << -0.0 << true;
        // Unlike the chart's "1.0 or less", the series takes these as given.
        QTest::newRow("1.0") << 1.0 << false;
        QTest::newRow("-1.0") << -1.0 << false;
    }

    void timeZeroIsNow()
    {
        QFETCH(double, time);
        QFETCH(bool, now);

        ValueOverTime series;
        const double before = double(QDateTime::currentMSecsSinceEpoch());
        series.vAppend(3.0, time);
        series.vAppend(3.0, time); // 0.0 never repeats the stored time
        const double after = double(QDateTime::currentMSecsSinceEpoch());

        QCOMPARE(series.size(), now ? 2 : 1);
        for (int i = 0; i < series.size(); ++i) {
            const double x = series.pxData()[i];
            QVERIFY2(now ? (x >= before && x <= after) : x == time, qPrintable(QString::number(x, 'f')));
        }
    }

    void trimAndRefillKeepsArrays()
    {
        // The live chart's cycle: fill to 900,000, drop the oldest 225,000, refill.
        ValueOverTime series;
        double t = 1.0;
        auto refill = [&]() {
            while (series.size() < 900000)
                series.vAppend(t, t), t += 1.0;
        };
        refill();
        const double *x = series.pxData();
        const double *y = series.pyData();
        const int capacity = series.capacity();

        series.vEraseFirstValues(225000);
        QCOMPARE(series.oFirst(), QPointF(225001.0, 225001.0));
        refill();
        QCOMPARE(series.pxData(), x);
        QCOMPARE(series.pyData(), y);
        QCOMPARE(series.capacity(), capacity);

        // reserve() makes room up front; growing past the old capacity moves the arrays and says so.
        Recorder recorder(series);
        series.reserve(capacity + 1);
        QCOMPARE(recorder.xs, QVector<const double *> { series.pxData() });
        QVERIFY(series.pxData() != x);
    }

    void copyAndAssign()
    {
        ValueOverTime original;
        original.vAppend(1.0, 10.0);
        original.vAppend(2.0, 20.0);

        ValueOverTime copy(original);
        copy.vAppend(3.0, 30.0);
        QCOMPARE(original.size(), 2);
        QCOMPARE(copy.oLast(), QPointF(30.0, 3.0));

        ValueOverTime target;
        target.vAppend(9.0, 90.0);
        Recorder recorder(target);
        target = copy;
        QCOMPARE(samplesOf(target.pxData(), target.pyData(), target.size()),
            samplesOf(copy.pxData(), copy.pyData(), copy.size()));
        // Assignment may move the arrays; whoever draws from them gets the new ones.
        QCOMPARE(recorder.xs, QVector<const double *> { target.pxData() });
        QCOMPARE(recorder.shown.last().size(), 3);
    }
};

QTEST_MAIN(tst_ExportDialog)

#include "tst_exportdialog.moc"
