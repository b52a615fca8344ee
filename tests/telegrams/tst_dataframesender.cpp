// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/dataframesender.h"

#include "modaldialogdriver.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using Utils::DataFrameSender;
using Utils::DataFrameSenderUi;
using Utils::DataSequence;

namespace {

// A sensor that answers every frame with the next scripted reply, either later
// from the event loop or at once from inside the sender's signal.
class ScriptedSensor : public QObject
{
public:
    ScriptedSensor(DataFrameSender *sender, QStringList replies, bool immediate = false)
        : m_sender(sender)
        , m_replies(std::move(replies))
    {
        connect(sender, &DataFrameSender::vSendData, this, [this, immediate](std::string frame) {
            frames << QString::fromStdString(frame);
            if (m_replies.isEmpty())
                return; // silent: the step times out
            const std::string answer = m_replies.takeFirst().toStdString();
            if (immediate)
                m_sender->vDataReceived(answer);
            else
                QTimer::singleShot(0, m_sender, [this, answer]() { m_sender->vDataReceived(answer); });
        });
    }

    QStringList frames;

private:
    DataFrameSender *m_sender;
    QStringList m_replies;
};

std::list<DataSequence> steps(const QStringList &patterns, double timeOutMs = 5000)
{
    std::list<DataSequence> list;
    int n = 0;
    for (const QString &pattern : patterns)
        list.push_back({ "frame" + std::to_string(++n), pattern.toStdString(), "unset", timeOutMs });
    return list;
}

QStringList matched(const std::list<DataSequence> &list)
{
    QStringList texts;
    for (const DataSequence &step : list)
        texts << QString::fromStdString(step.oMatchedReply);
    return texts;
}

} // namespace

class tst_DataFrameSender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullAndEmptyLists();
    void runWithoutUi_data();
    void runWithoutUi();
    void timeOut();
    void replyAfterEndIgnored();
    void restartsFromCurrentStep();
    void binaryReply();
    void modalDialog();
    void modalDialogTimeOut();
};

void tst_DataFrameSender::nullAndEmptyLists()
{
    DataFrameSender nullSender(nullptr);
    nullSender.setShowUi(false);
    QSignalSpy sent(&nullSender, &DataFrameSender::vSendData);
    QVERIFY(sent.isValid());
    // No list: returns the finished flag at once.
    QCOMPARE(nullSender.nStart(), 1);
    QVERIFY(nullSender.bIsFinished());
    nullSender.vDataReceived("anything");
    QCOMPARE(sent.count(), 0);

    std::list<DataSequence> empty;
    DataFrameSender sender(&empty);
    QVERIFY(sender.isShowUi());
    sender.setShowUi(false);
    QVERIFY(!sender.isShowUi());
    QVERIFY(sender.bIsFinished());
    QCOMPARE(sender.nStart(), 1);
    QCOMPARE(sender.eErrorCause(), 0);
    QVERIFY(sender.bIsFinished());
}

void tst_DataFrameSender::runWithoutUi_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QStringList>("replies");
    QTest::addColumn<bool>("immediate");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("cause");
    QTest::addColumn<QStringList>("matched");
    QTest::addColumn<int>("framesSent");

    const QStringList three{ "OK\\d+", "^(\\w)\\w*\\1$", "v(?=2)\\d" };
    const QStringList good{ "xxOK12yy", "abca", "v1 v2" };
    QTest::newRow("all steps match") << three << good << false << 1 << 0 << QStringList{ "OK12", "abca", "v2" } << 3;
    QTest::newRow("replies from inside the send signal")
        << three << good << true << 1 << 0 << QStringList{ "OK12", "abca", "v2" } << 3;
    QTest::newRow("second reply does not match")
        << three << QStringList{ "OK1", "abcd", "v2" } << false << 0 << 2 << QStringList{ "OK1", "unset", "unset" } << 2;
    QTest::newRow("matching is case-sensitive")
        << QStringList{ "ok" } << QStringList{ "OK" } << false << 0 << 2 << QStringList{ "unset" } << 1;
    QTest::newRow("invalid pattern matches nothing")
        << QStringList{ "(" } << QStringList{ "(" } << true << 0 << 2 << QStringList{ "unset" } << 1;
}

void tst_DataFrameSender::runWithoutUi()
{
    QFETCH(QStringList, patterns);
    QFETCH(QStringList, replies);
    QFETCH(bool, immediate);
    QFETCH(int, result);
    QFETCH(int, cause);
    QFETCH(QStringList, matched);
    QFETCH(int, framesSent);

    std::list<DataSequence> list = steps(patterns);
    DataFrameSender sender(&list);
    sender.setShowUi(false);
    ScriptedSensor sensor(&sender, replies, immediate);
    QSignalSpy finished(&sender, &DataFrameSender::vFinished);

    QCOMPARE(sender.nStart(), result);
    QCOMPARE(sender.eErrorCause(), cause);
    QVERIFY(sender.bIsFinished());
    // Never set by a run, not even a complete one.
    QVERIFY(!sender.bSucceded());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(::matched(list), matched);
    QCOMPARE(sensor.frames.size(), framesSent);
    QCOMPARE(sensor.frames.first(), QStringLiteral("frame1"));
}

void tst_DataFrameSender::timeOut()
{
    std::list<DataSequence> list = steps({ "A", "B" }, 20.9);
    DataFrameSender sender(&list);
    sender.setShowUi(false);
    ScriptedSensor sensor(&sender, { "A" }); // the second step gets no reply
    QCOMPARE(sender.nStart(), 0);
    QCOMPARE(sender.eErrorCause(), 1);
    QVERIFY(sender.bIsFinished());
    QCOMPARE(::matched(list), (QStringList{ "A", "unset" }));
}

void tst_DataFrameSender::replyAfterEndIgnored()
{
    std::list<DataSequence> list = steps({ "A" });
    DataFrameSender sender(&list);
    sender.setShowUi(false);
    ScriptedSensor sensor(&sender, { "A" });
    QCOMPARE(sender.nStart(), 1);
    sender.vDataReceived("no match here");
    QCOMPARE(sender.eErrorCause(), 0);

    // After a failure too: a late reply neither matches nor changes the cause.
    std::list<DataSequence> failing = steps({ "A" }, 10);
    DataFrameSender timedOut(&failing);
    timedOut.setShowUi(false);
    QCOMPARE(timedOut.nStart(), 0);
    timedOut.vDataReceived("A");
    QCOMPARE(timedOut.eErrorCause(), 1);
    QCOMPARE(::matched(failing), QStringList{ "unset" });
}

void tst_DataFrameSender::restartsFromCurrentStep()
{
    std::list<DataSequence> list = steps({ "A", "B" });
    DataFrameSender sender(&list);
    sender.setShowUi(false);
    ScriptedSensor sensor(&sender, { "A", "x", "B" });
    QCOMPARE(sender.nStart(), 0);
    QCOMPARE(sender.eErrorCause(), 2);
    // The failed step is sent again.
    QCOMPARE(sender.nStart(), 1);
    QCOMPARE(sender.eErrorCause(), 0);
    QCOMPARE(sensor.frames, (QStringList{ "frame1", "frame2", "frame2" }));
    // At the end of the list a new run finishes at once.
    QCOMPARE(sender.nStart(), 1);
    QCOMPARE(sensor.frames.size(), 3);
}

void tst_DataFrameSender::binaryReply()
{
    // Raw bytes pass unchanged both ways, NUL and high bytes included.
    const std::string frame("\x24\x00\x01\xFF", 4);
    const std::string answer("junk\x24\x00\x01\xFE\xFFtail", 13);
    std::list<DataSequence> list{ { frame, "\\$\\x00\\x01[\\x80-\\xFF]+", "", 1000 } };
    DataFrameSender sender(&list);
    sender.setShowUi(false);
    std::string sentFrame;
    connect(&sender, &DataFrameSender::vSendData, &sender, [&](std::string bytes) {
        sentFrame = bytes;
        sender.vDataReceived(answer);
    });
    QCOMPARE(sender.nStart(), 1);
    QCOMPARE(sentFrame, frame);
    QCOMPARE(list.front().oMatchedReply, std::string("\x24\x00\x01\xFE\xFF", 5));
}

void tst_DataFrameSender::modalDialog()
{
    std::list<DataSequence> list = steps({ "A", "B" });
    DataFrameSender sender(&list);
    QVERIFY(sender.isShowUi());
    // The host answers the first frame at once; the second while the frame is shown.
    connect(&sender, &DataFrameSender::vSendData, &sender, [&](std::string frame) {
        if (frame == "frame1")
            sender.vDataReceived("A");
    });
    QSize size;
    QString label;
    auto shown = TestSupport::whenModal<DataFrameSenderUi>([&](DataFrameSenderUi *dialog) {
        size = dialog->size();
        label = dialog->findChild<QLabel *>()->text();
        // Escape does not close the frame: only the sender does.
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(dialog->isVisible());
        sender.vDataReceived("B");
    });
    QCOMPARE(sender.nStart(), int(QDialog::Accepted));
    QVERIFY(*shown);
    QCOMPARE(size, QSize(101, 31));
    QCOMPARE(label, QStringLiteral("Step 2/2"));
    QCOMPARE(sender.eErrorCause(), 0);
    QCOMPARE(::matched(list), (QStringList{ "A", "B" }));
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_DataFrameSender::modalDialogTimeOut()
{
    std::list<DataSequence> list = steps({ "A" }, 30);
    DataFrameSender sender(&list);
    auto shown = TestSupport::whenModal<DataFrameSenderUi>([&](DataFrameSenderUi *dialog) {
        QVERIFY(dialog->styleSheet().contains(QStringLiteral("stop: 0.4 #DDDDDD")));
    });
    QCOMPARE(sender.nStart(), int(QDialog::Rejected));
    QCOMPARE(sender.eErrorCause(), 1);
    QVERIFY(sender.bIsFinished());
    // Switching to the hidden loop keeps working afterwards.
    sender.setShowUi(false);
    QCOMPARE(sender.nStart(), 0);
    QCOMPARE(sender.eErrorCause(), 1);
    Q_UNUSED(shown)
}

QTEST_MAIN(tst_DataFrameSender)

#include "tst_dataframesender.moc"
