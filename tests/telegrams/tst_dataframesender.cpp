// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/dataframesender.h"

#include "modaldialogdriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

using Utils::DataFrameSender;
using Utils::DataFrameSenderUi;
using Utils::DataSequence;

namespace {

// A sensor that answers every frame with the next scripted reply, either later
// from the event loop or at once from inside the sender's signal, and stays
// silent when none is left. Returns the frames it was sent.
std::shared_ptr<QByteArrayList> script(DataFrameSender *sender, QByteArrayList replies, bool immediate = false)
{
    auto frames = std::make_shared<QByteArrayList>();
    QObject::connect(sender, &DataFrameSender::vSendData, sender, [=](std::string frame) mutable {
        *frames << QByteArray::fromStdString(frame);
        if (replies.isEmpty())
            return;
        const std::string answer = replies.takeFirst().toStdString();
        if (immediate)
            sender->vDataReceived(answer);
        else
            QTimer::singleShot(0, sender, [=]() { sender->vDataReceived(answer); });
    });
    return frames;
}

// Frames are raw bytes: each carries a NUL and a high byte.
QByteArray frame(int step)
{
    return QByteArray("\0\xFF", 2) + QByteArray::number(step);
}

std::list<DataSequence> steps(const QByteArrayList &patterns, double timeOutMs = 5000)
{
    std::list<DataSequence> list;
    for (const QByteArray &pattern : patterns)
        list.push_back({ frame(int(list.size()) + 1).toStdString(), pattern.toStdString(), "unset", timeOutMs });
    return list;
}

QByteArrayList matched(const std::list<DataSequence> &list)
{
    QByteArrayList texts;
    for (const DataSequence &step : list)
        texts << QByteArray::fromStdString(step.oMatchedReply);
    return texts;
}

} // namespace

class tst_DataFrameSender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullList()
    {
        DataFrameSender sender(nullptr);
        sender.setShowUi(false);
        QSignalSpy sent(&sender, &DataFrameSender::vSendData);
        QCOMPARE(sender.nStart(), 1); // the finished flag
        QVERIFY(sender.bIsFinished());
        sender.vDataReceived("anything");
        QCOMPARE(sent.count(), 0);
    }

    void runWithoutUi_data()
    {
        QTest::addColumn<QByteArrayList>("patterns");
        QTest::addColumn<QByteArrayList>("replies");
        QTest::addColumn<bool>("immediate");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("cause");
        QTest::addColumn<QByteArrayList>("matched");
        QTest::addColumn<int>("sent");

        const QByteArrayList three{ "OK\\d+", "^(\\w)\\w*\\1$", "v(?=2)\\d" };
        const QByteArrayList good{ "xxOK12yy", "abca", "v1 v2" };
        QTest::newRow("empty list") << QByteArrayList() << QByteArrayList() << false << 1 << 0 << QByteArrayList() << 0;
        QTest::newRow("all steps match")
            << three << good << false << 1 << 0 << QByteArrayList{ "OK12", "abca", "v2" } << 3;
        QTest::newRow("replies from inside the send signal")
            << three << good << true << 1 << 0 << QByteArrayList{ "OK12", "abca", "v2" } << 3;
        // The unused last reply would match the failed step if it came late.
        QTest::newRow("second reply does not match") << three << QByteArrayList{ "OK1", "abcd", "abca" } << false << 0
                                                     << 2 << QByteArrayList{ "OK1", "unset", "unset" } << 2;
        QTest::newRow("no reply: time-out") << QByteArrayList{ "A", "A" } << QByteArrayList{ "A" } << false << 0 << 1
                                            << QByteArrayList{ "A", "unset" } << 2;
        QTest::newRow("matching is case-sensitive")
            << QByteArrayList{ "ok" } << QByteArrayList{ "OK" } << false << 0 << 2 << QByteArrayList{ "unset" } << 1;
        QTest::newRow("invalid pattern matches nothing")
            << QByteArrayList{ "(" } << QByteArrayList{ "(" } << true << 0 << 2 << QByteArrayList{ "unset" } << 1;
        QTest::newRow("binary reply, NUL and high bytes")
            << QByteArrayList{ "\\$\\x00\\x01[\\x80-\\xFF]+" }
            << QByteArrayList{ QByteArray("junk$\0\x01\xFE\xFFtail", 13) }
            << true << 1 << 0 << QByteArrayList{ QByteArray("$\0\x01\xFE\xFF", 5) } << 1;
    }

    void runWithoutUi()
    {
        QFETCH(QByteArrayList, patterns);
        QFETCH(QByteArrayList, replies);
        QFETCH(bool, immediate);
        QFETCH(int, cause);

        // A short time-out only where the sensor runs out of replies.
        std::list<DataSequence> list = steps(patterns, replies.size() < patterns.size() ? 300 : 5000);
        DataFrameSender sender(&list);
        sender.setShowUi(false);
        const auto frames = script(&sender, replies, immediate);
        QSignalSpy finished(&sender, &DataFrameSender::vFinished);

        QElapsedTimer clock;
        clock.start();
        QTEST(sender.nStart(), "result");
        // The silent step waits its whole 300 ms (a lower bound only: a busy machine is slower).
        if (cause == 1)
            QVERIFY2(clock.elapsed() >= 250, qPrintable(QString::number(clock.elapsed())));
        // Replies after the end are ignored.
        for (const QByteArray &late : replies)
            sender.vDataReceived(late.toStdString());
        QCOMPARE(sender.eErrorCause(), cause);
        QVERIFY(sender.bIsFinished());
        // Never set by a run, not even a complete one.
        QVERIFY(!sender.bSucceded());
        QCOMPARE(finished.count(), 0);
        QTEST(::matched(list), "matched");
        QTEST(frames->size(), "sent");
    }

    void restartsFromCurrentStep()
    {
        std::list<DataSequence> list = steps({ "A", "B" });
        DataFrameSender sender(&list);
        sender.setShowUi(false);
        const auto frames = script(&sender, { "A", "x", "B" });
        QCOMPARE(sender.nStart(), 0);
        QCOMPARE(sender.eErrorCause(), 2);
        // The failed step is sent again.
        QCOMPARE(sender.nStart(), 1);
        QCOMPARE(sender.eErrorCause(), 0);
        QCOMPARE(*frames, (QByteArrayList{ frame(1), frame(2), frame(2) }));
        // At the end of the list a new run finishes at once.
        QCOMPARE(sender.nStart(), 1);
        QCOMPARE(frames->size(), 3);
    }

    void modalDialog()
    {
        std::list<DataSequence> list = steps({ "A", "B" });
        DataFrameSender sender(&list);
        QVERIFY(sender.isShowUi());
        // The host answers the first frame at once; the second while the frame is shown.
        connect(&sender, &DataFrameSender::vSendData, &sender, [&](std::string frame) {
            if (frame == ::frame(1).toStdString())
                sender.vDataReceived("A");
        });
        QSize size;
        QString label, style;
        auto shown = TestSupport::whenModal<DataFrameSenderUi>([&](DataFrameSenderUi *dialog) {
            size = dialog->size();
            label = dialog->findChild<QLabel *>()->text();
            style = dialog->styleSheet();
            // Escape does not close the frame: only the sender does.
            QTest::keyClick(dialog, Qt::Key_Escape);
            QVERIFY(dialog->isVisible());
            sender.vDataReceived("B");
        });
        QCOMPARE(sender.nStart(), int(QDialog::Accepted));
        QVERIFY(*shown);
        QCOMPARE(size, QSize(101, 31));
        QCOMPARE(label, QStringLiteral("Step 2/2"));
        QVERIFY(style.contains(QStringLiteral("stop: 0.4 #DDDDDD")));
        QCOMPARE(sender.eErrorCause(), 0);
        QCOMPARE(::matched(list), (QByteArrayList{ "A", "B" }));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void modalDialogTimeOut()
    {
        std::list<DataSequence> list = steps({ "A" }, 30);
        DataFrameSender sender(&list);
        QCOMPARE(sender.nStart(), int(QDialog::Rejected));
        QCOMPARE(sender.eErrorCause(), 1);
        QVERIFY(sender.bIsFinished());
        // Switching to the hidden loop keeps working afterwards.
        sender.setShowUi(false);
        QCOMPARE(sender.nStart(), 0);
        QCOMPARE(sender.eErrorCause(), 1);
    }
};

QTEST_MAIN(tst_DataFrameSender)

#include "tst_dataframesender.moc"
