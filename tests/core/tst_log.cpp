// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/log.h"
#include "core/log_p.h"
#include "core/temporaryfile.h"

#include <QtTest>

#include <string>

using Utils::LoggingSystem::Log;
using Utils::LoggingSystem::TemporaryFile;

namespace {

// The line composition of vLog(), which drops its line, with a fixed clock.
struct LineComposer
{
    static QString compose(int level, const std::string &module, const QDateTime &now, const char *format, ...)
    {
        va_list args;
        va_start(args, format);
        const QString line = Utils::LoggingSystem::Internal::composeLogLine(level, module, now, format, args);
        va_end(args);
        return line;
    }
};

const QDateTime exampleTime(QDate(2026, 11, 13), QTime(14, 3, 7, 412));

} // namespace

// The singleton's count is process-wide state: the functions below run in
// declaration order and each leaves the count at 0 with no instance, except the
// last row of the last one, which drives it below zero on purpose.
class tst_Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void composedLine_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("expected");

        QTest::newRow("info example") << 2 << "connected" << "14:03:07.412 | 13.11.2026 | INFO | Sensor | connected";
        QTest::newRow("error") << 0 << "x" << "14:03:07.412 | 13.11.2026 | ERROR | Sensor | x";
        QTest::newRow("warning") << 1 << "x" << "14:03:07.412 | 13.11.2026 | WARNING | Sensor | x";
        QTest::newRow("debug") << 3 << "x" << "14:03:07.412 | 13.11.2026 | DEBUG | Sensor | x";
        QTest::newRow("unknown level leaves the field empty")
            << 7 << "text" << "14:03:07.412 | 13.11.2026 |  | Sensor | text";
        QTest::newRow("negative level") << -1 << "text" << "14:03:07.412 | 13.11.2026 |  | Sensor | text";
        QTest::newRow("CR and LF become blanks") << 2 << "a\r\nb" << "14:03:07.412 | 13.11.2026 | INFO | Sensor | a  b";
        QTest::newRow("empty message") << 2 << "" << "14:03:07.412 | 13.11.2026 | INFO | Sensor | ";
    }

    void composedLine()
    {
        QFETCH(int, level);
        QFETCH(QString, message);
        const QByteArray utf8 = message.toUtf8();
        QTEST(LineComposer::compose(level, "Sensor", exampleTime, "%s", utf8.constData()), "expected");
    }

    void overlongMessageIsCut()
    {
        // printf expansion and the layout together.
        QCOMPARE(LineComposer::compose(2, "Mod\nule", exampleTime, "%d mm at %s", 120, "gate"),
                 QStringLiteral("14:03:07.412 | 13.11.2026 | INFO | Mod ule | 120 mm at gate"));
        QCOMPARE(LineComposer::compose(2, "M", exampleTime, nullptr),
                 QStringLiteral("14:03:07.412 | 13.11.2026 | INFO | M | "));

        const int keep = Log::MessageBufferSize - 1;
        const QString prefix = QStringLiteral("14:03:07.412 | 13.11.2026 | INFO | M | ");

        const std::string longText(150000, 'x');
        QString line = LineComposer::compose(2, "M", exampleTime, "%s", longText.c_str());
        QCOMPARE(line.size(), prefix.size() + keep);
        QVERIFY(line.startsWith(prefix));

        // A two-byte character that would be split by the cut is dropped whole.
        const std::string split = std::string(keep - 1, 'x') + "\xc3\xa9" + "tail";
        line = LineComposer::compose(2, "M", exampleTime, "%s", split.c_str());
        QCOMPARE(line.size(), prefix.size() + keep - 1);
        QVERIFY(!line.contains(QChar(0xFFFD)));

        // One that fits exactly is kept.
        const std::string fits = std::string(keep - 2, 'x') + "\xc3\xa9";
        line = LineComposer::compose(2, "M", exampleTime, "%s", fits.c_str());
        QCOMPARE(line.size(), prefix.size() + keep - 2 + 1);
        QVERIFY(line.endsWith(QChar(0xE9)));
    }

    void vLogDoesNotEmit()
    {
        Log *log = Log::requestInstance();
        QSignalSpy spy(log, &Log::emitLastLogged);
        log->vLog(Log::eInfo, "Sensor", "connected %d", 1);
        QCOMPARE(spy.count(), 0); // composed and dropped on purpose
        Q_EMIT log->emitLastLogged(QStringLiteral("host line"));
        QCOMPARE(spy.count(), 1);
        Log::releaseInstance(false);
    }

    void temporaryFile()
    {
        QString path;
        {
            TemporaryFile file;
            const QString prefix = QCoreApplication::applicationDirPath() + QLatin1Char('/')
                + QCoreApplication::applicationName() + QLatin1String("-log-");
            QCOMPARE(file.fileTemplate(), prefix + QLatin1String("XXXXXX"));
            path = file.fileName();
            QVERIFY2(path.startsWith(prefix), qPrintable(path));
            QCOMPARE(path.size(), prefix.size() + 6);
            QCOMPARE(int(file.openMode()), 35);
            QVERIFY(file.autoRemove());
            QCOMPARE(file.write("line\n"), qint64(5));
            QVERIFY(QFileInfo::exists(path));

            file.close();
            file.open();
            QCOMPARE(int(file.openMode()), 35);
            QCOMPARE(file.readAll(), QByteArray("line\n"));
        }
        QVERIFY(!QFileInfo::exists(path));
    }

    void temporaryFileReleasesItsReference()
    {
        Log *log = Log::requestInstance();
        QPointer<Log> watch(log);
        Log::requestInstance(); // our own reference besides the file's
        {
            TemporaryFile file(log);
        }
        QVERIFY(watch);
        Log::releaseInstance(false);
        QVERIFY(!watch);

        {
            TemporaryFile file(Log::requestInstance());
            watch = Log::requestInstance();
            Log::releaseInstance(false);
            QVERIFY(watch);
        }
        QVERIFY(!watch); // the file gave back the last reference
    }

    // The reference count of the logger, step by step. Runs last: the last row
    // leaves the process-wide count below zero on purpose.
    void referenceCount_data()
    {
        QTest::addColumn<QByteArray>("steps"); // q: request, r: release, f: forced release
        QTest::addColumn<QByteArray>("alive"); // whether an instance exists after each step
        QTest::newRow("the last of two holders destroys") << QByteArray("qqrr") << QByteArray("1110");
        QTest::newRow("a forced release destroys and still counts") << QByteArray("qqfqrr") << QByteArray("110110");
        QTest::newRow("releases without an instance count too") << QByteArray("qqfrqr") << QByteArray("110010");
        QTest::newRow("below zero a release keeps the instance") << QByteArray("fqrf") << QByteArray("0110");
    }

    void referenceCount()
    {
        QFETCH(QByteArray, steps);
        QFETCH(QByteArray, alive);
        QPointer<Log> held;
        for (int i = 0; i < steps.size(); ++i) {
            if (steps[i] == 'q') {
                Log *log = Log::requestInstance();
                QVERIFY(!held || held == log); // one instance for all holders
                held = log;
            } else {
                Log::releaseInstance(steps[i] == 'f');
            }
            QVERIFY2(bool(held) == (alive[i] == '1'), qPrintable(QStringLiteral("after step %1").arg(i + 1)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Log)
#include "tst_log.moc"
