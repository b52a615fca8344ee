// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/log.h"
#include "core/logreader.h"
#include "core/logviewer.h"
#include "filedialogdriver.h"
#include "widgets/filterlineedit.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QPlainTextEdit>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using Utils::LoggingSystem::Log;
using Utils::LoggingSystem::LogReader;
using Utils::LoggingSystem::LogViewer;

namespace {

// Every paragraph of the view with its text colour.
QList<QPair<QString, QColor>> paragraphs(QPlainTextEdit *view)
{
    QList<QPair<QString, QColor>> result;
    for (QTextBlock block = view->document()->begin(); block.isValid(); block = block.next()) {
        const QTextFragment fragment = block.begin().fragment();
        result.append({block.text(), fragment.isValid() ? fragment.charFormat().foreground().color() : QColor()});
    }
    return result;
}

void appendTo(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    file.write(text);
}

} // namespace

class tst_LogViewer : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;
    Log *log = nullptr;
    std::unique_ptr<LogViewer> viewer;

    QPlainTextEdit *view() const { return viewer->poTextBrowser(); }
    void emitLines(const QStringList &lines)
    {
        for (const QString &line : lines)
            Q_EMIT log->emitLastLogged(line);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        log = Log::requestInstance();
    }
    void cleanupTestCase() { Log::releaseInstance(false); }
    void init()
    {
        // The file at start: a line with markup must stay text.
        QFile file(dir.filePath(QStringLiteral("start.log")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("12:00:00.000 | INFO | <b>bold</b> & co\n");
        file.close();
        viewer = std::make_unique<LogViewer>(nullptr, file.fileName());
    }
    void cleanup() { viewer.reset(); }

    void form()
    {
        QCOMPARE(viewer->objectName(), QStringLiteral("LogViewer"));
        QCOMPARE(viewer->windowTitle(), QStringLiteral("Log View "));
        QCOMPARE(viewer->poFilterEdit()->objectName(), QStringLiteral("filterEdit"));
        QCOMPARE(viewer->poFilterEdit()->placeholderText(), QStringLiteral("Filter log entries"));
        QCOMPARE(viewer->findChild<QPushButton *>(QStringLiteral("SaveAs"))->text(), QStringLiteral("Save Log As..."));
        QCOMPARE(viewer->findChild<QPushButton *>(QStringLiteral("clearButton"))->text(), QStringLiteral("Clear"));
        QVERIFY(view()->isReadOnly());
        QCOMPARE(view()->toPlainText(), QStringLiteral("12:00:00.000 | INFO | <b>bold</b> & co\n"));
    }

    // One batch: levels coloured, a line without a level takes the colour before it, markup stays text.
    void batchColours()
    {
        view()->clear();
        emitLines({QStringLiteral("a | ERROR | x\nb | WARNING | <i>y</i> &amp;\n"), QStringLiteral("no level\n"),
                   QStringLiteral("c | INFO | z\n")});
        QCOMPARE(view()->toPlainText(), QString()); // nothing before the tick
        QTRY_COMPARE_WITH_TIMEOUT(paragraphs(view()).size(), 4, 2000);
        const QList<QPair<QString, QColor>> expected{{QStringLiteral("a | ERROR | x"), QColor(Qt::red)},
                                                      {QStringLiteral("b | WARNING | <i>y</i> &amp;"),
                                                       QColor(193, 198, 19)},
                                                      {QStringLiteral("no level"), QColor(193, 198, 19)},
                                                      {QStringLiteral("c | INFO | z"), QColor(Qt::darkBlue)}};
        QCOMPARE(paragraphs(view()), expected);
    }

    // "warn" keeps a WARNING line (any case) and drops an INFO line; an invalid pattern drops everything.
    void filter()
    {
        QTest::keyClicks(viewer->poFilterEdit(), QStringLiteral("warn"));
        emitLines({QStringLiteral("w | WARNING | kept\n"), QStringLiteral("i | INFO | dropped\n")});
        QTRY_VERIFY_WITH_TIMEOUT(view()->toPlainText().contains(QLatin1String("kept")), 2000);
        QVERIFY(!view()->toPlainText().contains(QLatin1String("dropped")));
        viewer->vFilterChanged(QStringLiteral("(unclosed"));
        QSignalSpy passed(viewer.get(), &LogViewer::emitAppendText);
        emitLines({QStringLiteral("(unclosed WARNING\n")});
        QCOMPARE(passed.count(), 0);
    }

    // "No" keeps the view, "Yes" clears it.
    void clearAsks()
    {
        auto *button = viewer->findChild<QPushButton *>(QStringLiteral("clearButton"));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            const auto asked = TestSupport::whenModal<QMessageBox>([answer](QMessageBox *box) {
                QCOMPARE(box->windowTitle(), QStringLiteral("Clear log"));
                QCOMPARE(box->text(), QStringLiteral("Are you sure ?"));
                box->button(answer)->click();
            });
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(*asked);
            QCOMPARE(view()->toPlainText().isEmpty(), answer == QMessageBox::Yes);
        }
    }

    // The real file dialog: Latin-1 text, the date-named proposal, and no truncation of a longer file.
    void saveAs()
    {
        view()->setPlainText(QStringLiteral("Messwert \u00E9t\u00E9"));
        const QString target = dir.filePath(QStringLiteral("saved.txt"));
        QFile longer(target);
        QVERIFY(longer.open(QIODevice::WriteOnly));
        longer.write("0123456789012345678901234567890123456789TAIL");
        longer.close();
        QString proposed;
        // The file exists: the dialog asks before it lets us write over it, and is told yes.
        const auto saved = TestSupport::answerFileDialog(target, [&](QFileDialog *dialog) {
            proposed = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
        });
        QTest::mouseClick(viewer->findChild<QPushButton *>(QStringLiteral("SaveAs")), Qt::LeftButton);
        QVERIFY(*saved);
        QCOMPARE(proposed, QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")) + QStringLiteral("-QuendaLog.txt"));
        QVERIFY(longer.open(QIODevice::ReadOnly));
        const QByteArray bytes = longer.readAll();
        QVERIFY(bytes.startsWith("Messwert \xE9t\xE9"));
        QVERIFY(bytes.endsWith("TAIL")); // the longer file's tail stays

        // Cancelled: nothing written.
        const auto cancelled = TestSupport::cancelFileDialog();
        QFile::remove(target);
        QTest::mouseClick(viewer->findChild<QPushButton *>(QStringLiteral("SaveAs")), Qt::LeftButton);
        QVERIFY(*cancelled);
        QVERIFY(!QFile::exists(target));
    }

    void closeEmitsAndStays()
    {
        viewer->show();
        QSignalSpy closing(viewer.get(), &LogViewer::vAboutToClose);
        QVERIFY(!viewer->close());
        QCOMPARE(closing.count(), 1);
        QVERIFY(viewer->isVisible());
    }

    // The reader announces complete lines only, and follows a file through truncation,
    // replacement and deletion.
    void readerFollowsTheFile()
    {
        const QString path = dir.filePath(QStringLiteral("follow.log"));
        appendTo(path, "first\n");
        LogReader reader(path);
        QVERIFY(reader.bIsRunning());
        QSignalSpy lines(&reader, &LogReader::vDataAvailable);
        QTRY_COMPARE(lines.count(), 1);
        QCOMPARE(lines.takeFirst().first().toString(), QStringLiteral("first\n"));
        appendTo(path, "sec");
        QTest::qWait(50);
        QCOMPARE(lines.count(), 0);
        appendTo(path, "ond\n");
        QTRY_COMPARE(lines.count(), 1);
        QCOMPARE(lines.takeFirst().first().toString(), QStringLiteral("second\n"));

        QFile truncated(path);
        QVERIFY(truncated.open(QIODevice::WriteOnly | QIODevice::Truncate));
        truncated.close();
        QTest::qWait(300);
        appendTo(path, "after truncation\n");
        QTRY_COMPARE(lines.count(), 1);
        QCOMPARE(lines.takeFirst().first().toString(), QStringLiteral("after truncation\n"));

        QVERIFY(QFile::remove(path));
        QTest::qWait(300);
        appendTo(path, "a new file\n");
        QTRY_COMPARE(lines.count(), 1);
        QCOMPARE(lines.takeFirst().first().toString(), QStringLiteral("a new file\n"));

        LogReader missing;
        QVERIFY(!missing.bSetLogFilePath(dir.filePath(QStringLiteral("none.log"))));
        QVERIFY(!missing.bIsRunning());
    }

    // Destroying running readers while the machine is busy never aborts the process.
    void readersComeAndGoUnderLoad()
    {
        const QString path = dir.filePath(QStringLiteral("busy.log"));
        appendTo(path, "line\n");
        std::atomic<bool> busy{true};
        std::vector<std::thread> burners;
        for (unsigned i = 0; i < std::max(2u, std::thread::hardware_concurrency()); ++i)
            burners.emplace_back([&busy]() {
                volatile double x = 0.0;
                while (busy.load())
                    x = x + 1.0;
            });
        for (int i = 0; i < 200; ++i) {
            auto reader = std::make_unique<LogReader>(path);
            if (i % 3 == 0)
                QThread::usleep(200);
        }
        busy.store(false);
        for (std::thread &t : burners)
            t.join();
    }
};

QTEST_MAIN(tst_LogViewer)
#include "tst_logviewer.moc"
