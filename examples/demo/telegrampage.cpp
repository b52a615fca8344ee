// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrampage.h"

#include <telegrams/dataframesender.h>
#include <telegrams/melencoderdecoder.h>
#include <telegrams/tamarinddataheader.h>
#include <telegrams/tamarindprotocolheader.h>

#include <QCheckBox>
#include <QFile>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTime>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtMath>

#include <functional>

using Utils::DataFrameSender;
using Utils::DataSequence;
using Utils::TamarindDataHeader;
using Utils::TamarindProtocolHeader;

namespace {

constexpr int nReplyDelayMs = 40;

QString hexBytes(const std::string &bytes, int limit = 24)
{
    const QByteArray data = QByteArray::fromStdString(bytes);
    QString text = QString::fromLatin1(data.left(limit).toHex(' '));
    if (data.size() > limit)
        text += QStringLiteral(" ... (%1 bytes)").arg(data.size());
    return text;
}

bool isHeaderText(const std::string &frame)
{
    return frame.size() == TamarindProtocolHeader::nTextLength && frame.find('\0') == std::string::npos;
}

QString characterField(uint8_t code)
{
    return QStringLiteral("0x%1 '%2'").arg(code, 2, 16, QLatin1Char('0')).arg(QLatin1Char(char(code)));
}

std::string request(uint8_t command0, uint8_t command1, uint32_t dataLength)
{
    TamarindDataHeader header;
    header.vSetCommand0(command0);
    header.vSetCommand1(command1);
    header.vSetDataLenght(dataLength);
    return header.encode();
}

} // namespace

/*
    A laser distance sensor on the other end of the line: it answers a header
    text with its own header and a data telegram with the record its commands
    ask for, a little later, as a real sensor would.
*/
class TelegramSensor : public QObject
{
public:
    explicit TelegramSensor(QObject *parent)
        : QObject(parent)
    {
    }

    //! Answers \a sender's frames; \a onReply sees each answer as it goes out.
    void attach(DataFrameSender *sender, std::function<void(const std::string &)> onReply)
    {
        connect(sender, &DataFrameSender::vSendData, this, [this, sender, onReply](std::string frame) {
            const std::string answer = reply(frame);
            QTimer::singleShot(nReplyDelayMs, sender, [sender, answer, onReply]() {
                onReply(answer);
                sender->vDataReceived(answer);
            });
        });
    }

private:
    std::string reply(const std::string &frame)
    {
        if (isHeaderText(frame)) {
            TamarindProtocolHeader own;
            own.vSetStart(0x02);
            own.vSetVersion(0x01);
            own.vSetMessageId(0x05);
            own.vSetProtocolLenght(0x14);
            own.vSetMessageType(0x04);
            own.vSetAdress(0xFF);
            return own.oToString();
        }
        if (frame.size() < TamarindDataHeader::nHeaderSize)
            return std::string();
        const uint8_t command0 = uint8_t(frame[12]);
        const uint8_t command1 = uint8_t(frame[13]);
        std::string payload;
        if (command0 == 0) {
            payload = "LD-250 demo  SN 0004711 FW1.4";
            payload.resize(30, ' ');
        } else if (command1 == 0) {
            // Distance in 1/100 mm and signal quality, little-endian.
            ++m_samples;
            const uint32_t distance = uint32_t(12000 + 2500 * qSin(m_samples * 0.7));
            payload.resize(32, '\0');
            for (int i = 0; i < 4; ++i)
                payload[i] = char(distance >> (8 * i));
            payload[4] = char(80 + m_samples % 20);
        } else if (command1 == 7) {
            for (int i = 0; i < 96; ++i)
                payload.push_back(char(i * 3));
        } else if (command1 == 1) {
            payload = "params:rate=1000;filter=median5;out1=NO;";
        }
        std::string answer = frame.substr(0, TamarindDataHeader::nPayloadOffset);
        const uint32_t size = uint32_t(payload.size());
        for (int i = 0; i < 4; ++i)
            answer[24 + i] = char(size >> (8 * i));
        return answer + payload;
    }

    int m_samples = 0;
};

TelegramPage::TelegramPage(QWidget *parent)
    : DemoPage(parent)
    , m_sensor(new TelegramSensor(this))
    , m_console(new QPlainTextEdit(this))
    , m_decoded(new QTreeWidget(this))
    , m_status(new QLabel(this))
    , m_runButton(new QPushButton(tr("Run exchange"), this))
    , m_showFrame(new QCheckBox(tr("Wait in the progress frame"), this))
    , m_repeat(new QTimer(this))
{
    setObjectName(QStringLiteral("telegrams"));
    m_console->setReadOnly(true);
    m_console->setMaximumBlockCount(400);
    m_console->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_decoded->setColumnCount(2);
    m_decoded->setHeaderLabels({ tr("Decoded reply"), tr("Value") });
    m_decoded->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    auto *splitter = new QSplitter(this);
    splitter->addWidget(m_console);
    splitter->addWidget(m_decoded);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);

    auto *controls = new QHBoxLayout;
    controls->addWidget(m_runButton);
    controls->addWidget(m_showFrame);
    controls->addWidget(m_status, 1);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Frames exchanged with the simulated sensor through DataFrameSender; "
                                    "every reply is matched against its step's pattern and then decoded."),
                                 this));
    layout->addWidget(splitter, 1);
    layout->addLayout(controls);

    connect(m_runButton, &QPushButton::clicked, this, &TelegramPage::runExchange);
    connect(m_repeat, &QTimer::timeout, this, &TelegramPage::runExchange);
}

TelegramPage::~TelegramPage() = default;

void TelegramPage::start()
{
    // From the event loop: nStart() waits in a loop of its own.
    QTimer::singleShot(0, this, &TelegramPage::runExchange);
    m_repeat->start(2500);
}

void TelegramPage::log(const QString &line)
{
    m_console->appendPlainText(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz ")) + line);
}

void TelegramPage::runExchange()
{
    if (m_running)
        return;
    m_running = true;
    m_runButton->setEnabled(false);
    ++m_runs;

    TamarindProtocolHeader hello;
    hello.vSetStart(0x02);
    hello.vSetVersion(0x01);
    hello.vSetMessageId(0x05);
    hello.vSetProtocolLenght(0x14);
    hello.vSetMessageType(0x03);
    hello.vSetAdress(1);

    // Binary replies: "(?s)" lets '.' take every byte, NUL included.
    std::list<DataSequence> steps{
        { hello.oToString(), "^02[0-9A-F]{22}$", std::string(), 500 },
        { request(0, 0, 0), "(?s)^\\$.{57}", std::string(), 500 },
        { request(10, 0, 32), "(?s)^\\$.{59}", std::string(), 500 },
        { request(10, 7, 96), "(?s)^\\$.{123}", std::string(), 500 },
        { request(10, 1, 0), "(?s)^\\$.{27,}", std::string(), 500 },
    };

    log(tr("run %1: %2 steps").arg(m_runs).arg(steps.size()));
    DataFrameSender sender(&steps, this);
    sender.setShowUi(m_showFrame->isChecked());
    auto show = [](const std::string &bytes) {
        return isHeaderText(bytes) ? QString::fromStdString(bytes) : hexBytes(bytes);
    };
    m_sensor->attach(&sender, [this, show](const std::string &reply) { log(QStringLiteral("<- ") + show(reply)); });
    connect(&sender, &DataFrameSender::vSendData, this,
            [this, show](std::string frame) { log(QStringLiteral("-> ") + show(frame)); });
    const int result = sender.nStart();
    static const char *const causes[] = { QT_TR_NOOP("none"), QT_TR_NOOP("time-out"), QT_TR_NOOP("reply did not match") };
    const int cause = sender.eErrorCause();
    m_status->setText(tr("Run %1: nStart() = %2, error cause %3 (%4)")
                          .arg(m_runs)
                          .arg(result)
                          .arg(cause)
                          .arg(tr(causes[qBound(0, cause, 2)])));
    log(m_status->text());
    showReplies(steps);
    m_runButton->setEnabled(true);
    m_running = false;
}

QTreeWidgetItem *TelegramPage::addGroup(const QString &title, const QString &value)
{
    auto *item = new QTreeWidgetItem(m_decoded, { title, value });
    item->setExpanded(true);
    return item;
}

void TelegramPage::showReplies(const std::list<DataSequence> &steps)
{
    m_decoded->clear();
    auto it = steps.begin();
    const DataSequence &helloStep = *it++;
    auto row = [](QTreeWidgetItem *group, const QString &field, const QString &value) {
        new QTreeWidgetItem(group, { field, value });
    };

    if (!helloStep.oMatchedReply.empty()) {
        TamarindProtocolHeader header;
        header.bSetFromString(helloStep.oMatchedReply);
        QTreeWidgetItem *group = addGroup(tr("Protocol header"), QString::fromStdString(helloStep.oMatchedReply));
        // The protocol reads byte fields as characters, numbers as hex.
        row(group, tr("start"), characterField(header.u8Start()));
        row(group, tr("version"), characterField(header.u8Version()));
        row(group, tr("message id"), characterField(header.u8MessageId()));
        row(group, tr("message type"), characterField(header.u8MessageType()));
        row(group, tr("length"), QString::number(header.u16ProtocolLenght()));
        row(group, tr("address"), QString::number(header.u32Adress()));
        row(group, tr("Mel checksum of the text"),
            QString::fromStdString(Utils::MelEncoderDecoder().oCalculateChecksum(helloStep.oMatchedReply)));
    }

    TamarindDataHeader decoder;
    for (; it != steps.end(); ++it)
        decoder.decode(it->oMatchedReply);

    const Utils::IdentificationData identification = decoder.readOutIdentificationData();
    QTreeWidgetItem *group = addGroup(tr("Identification"), tr("command 0"));
    row(group, tr("text"),
        QString::fromLatin1(reinterpret_cast<const char *>(identification.au8Data), sizeof identification.au8Data)
            .trimmed());

    const Utils::ReadOutProcessData process = decoder.readOutProcessData();
    uint32_t distance = 0;
    for (int i = 0; i < 4; ++i)
        distance |= uint32_t(process.au8Data[i]) << (8 * i);
    group = addGroup(tr("Process data"), tr("command 10/0, data length 32"));
    row(group, tr("distance"), tr("%1 mm").arg(distance / 100.0, 0, 'f', 2));
    row(group, tr("signal quality"), tr("%1 %").arg(process.au8Data[4]));

    const Utils::ReadOutParametersConfiguration parameters = decoder.readParametersConfiguration();
    group = addGroup(tr("Parameter configuration"), tr("command 10/7"));
    row(group, tr("first bytes"),
        hexBytes(std::string(reinterpret_cast<const char *>(parameters.au8Data), sizeof parameters.au8Data), 12));

    group = addGroup(tr("Full read-out"), tr("command 10/1"));
    const QString dump = decoder.hexReadAllParameters();
    row(group, tr("hex dump"), dump.left(56) + (dump.size() > 56 ? QStringLiteral("...") : QString()));
    row(group, tr("characters"), QString::number(dump.size()));

    TamarindDataHeader readOut;
    readOut.vSetCommand0(10);
    readOut.vSetCommand1(7);
    const std::string bytes = readOut.encode();
    group = addGroup(tr("Request"), tr("command 10/7, as encoded"));
    row(group, tr("bytes"), hexBytes(bytes, 32));
    row(group, tr("checksum"), QStringLiteral("0x%1").arg(uint8_t(bytes[28]), 2, 16, QLatin1Char('0')));
}

void TelegramPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    QFile file(outputDir.absoluteFilePath(QStringLiteral("sensor-console.txt")));
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.write(m_console->toPlainText().toUtf8());
        file.write("\n");
        *written << file.fileName();
    }
}

DEMO_REGISTER_PAGE(TelegramPage, 20)
