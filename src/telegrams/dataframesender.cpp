// SPDX-License-Identifier: LGPL-2.1-or-later
#include "telegrams/dataframesender.h"

#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QStyleOption>
#include <QTimer>

#include <iterator>
#include <limits>

namespace Utils {

namespace {

// The program's grey frame, applied to the dialog only (not to its label).
const char *const greyFrameStyle = "Utils--DataFrameSenderUi {"
                                   " border: 1px solid gray;"
                                   " border-style: outset;"
                                   " border-radius: 3px;"
                                   " padding: 1px 18px 1px 3px;"
                                   " min-width: 6em;"
                                   " background: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,"
                                   " stop: 0 #E1E1E1, stop: 0.4 #DDDDDD, stop: 0.5 #D8D8D8, stop: 1.0 #D3D3D3);"
                                   " }";

// Whole milliseconds, truncated; out-of-range and NaN time-outs are clamped
// instead of overflowing the conversion.
int nTimeOutMs(double dTimeOutMs)
{
    if (!(dTimeOutMs > 0.0))
        return 0;
    if (dTimeOutMs >= double(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    return static_cast<int>(dTimeOutMs);
}

} // namespace

DataFrameSenderUi::DataFrameSenderUi(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_poLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("DataFrameSenderUi"));
    setStyleSheet(QString::fromLatin1(greyFrameStyle));
    // Polish first: the sheet's min-width would otherwise widen the frame.
    ensurePolished();
    setFixedSize(101, 31);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    m_poLabel->setAlignment(Qt::AlignCenter);
    m_poLabel->setText(tr("Sending..."));
    layout->addWidget(m_poLabel, 0, 0);
}

DataFrameSenderUi::~DataFrameSenderUi() = default;

void DataFrameSenderUi::vShowStep(int nStep, int nSteps)
{
    m_poLabel->setText(tr("Step %1/%2").arg(nStep).arg(nSteps));
}

void DataFrameSenderUi::reject()
{
    // Escape and close requests are ignored: only the sender ends the wait.
}

void DataFrameSenderUi::paintEvent(QPaintEvent *)
{
    // Let the style sheet draw border and gradient; QDialog alone paints only
    // a background.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

struct DataFrameSender::Private
{
    std::list<DataSequence> *poSequence = nullptr;
    std::list<DataSequence>::iterator oCurrent;
    bool bSucceded = false;
    bool bFinished = true;
    bool bShowUi = true;
    QTimer oTimer;
    QWidget *poParent = nullptr;
    QPointer<DataFrameSenderUi> poDialog;
    std::unique_ptr<QEventLoop> poLoop;
    int nErrorCause = eNone;
    // Set while nStart() waits; the exit code of a run that ended before the
    // wait began (a host that replies from inside its vSendData() slot).
    bool bWaiting = false;
    int nExitCode = 0;
    // Counts frames sent, so that a reply delivered during vSendData() is noticed.
    quint64 nFramesSent = 0;

    void vCreateWaiting()
    {
        if (bShowUi) {
            poDialog = new DataFrameSenderUi(poParent);
            poDialog->setModal(true);
        } else {
            poLoop.reset(new QEventLoop);
        }
    }

    void vDestroyWaiting()
    {
        delete poDialog.data();
        poDialog.clear();
        poLoop.reset();
    }

    void vShowStep()
    {
        if (!poDialog || !poSequence)
            return;
        const auto nStep = std::distance(poSequence->begin(), oCurrent) + 1;
        poDialog->vShowStep(static_cast<int>(nStep), static_cast<int>(poSequence->size()));
    }

    void vCloseWaiting(int nCode)
    {
        nExitCode = nCode;
        if (bShowUi) {
            if (poDialog)
                poDialog->done(nCode == 1 ? QDialog::Accepted : QDialog::Rejected);
        } else if (poLoop && poLoop->isRunning()) {
            poLoop->exit(nCode);
        }
    }
};

DataFrameSender::DataFrameSender(std::list<DataSequence> *poSequence, QWidget *parent)
    : QObject(parent)
    , d(new Private)
{
    qRegisterMetaType<std::string>("std::string");
    d->poSequence = poSequence;
    if (poSequence)
        d->oCurrent = poSequence->begin();
    d->poParent = parent;
    d->oTimer.setSingleShot(true);
    connect(&d->oTimer, &QTimer::timeout, this, &DataFrameSender::vTimeOut);
    d->vCreateWaiting();
}

DataFrameSender::~DataFrameSender()
{
    d->oTimer.stop();
    d->vDestroyWaiting();
}

int DataFrameSender::nStart()
{
    if (!d->poSequence) {
        d->bFinished = true;
        reject();
        return d->bFinished;
    }
    d->bFinished = false;
    d->nErrorCause = eNone;
    d->nExitCode = 0;
    vSendNextFrame();
    if (d->bFinished)
        return d->nExitCode;

    d->bWaiting = true;
    int nResult = 0;
    if (d->bShowUi && d->poDialog)
        nResult = d->poDialog->exec();
    else if (d->poLoop)
        nResult = d->poLoop->exec();
    d->bWaiting = false;
    if (!d->bFinished) {
        // The wait was ended from outside (the application quits): stop the run.
        d->oTimer.stop();
        d->bFinished = true;
    }
    return nResult;
}

void DataFrameSender::vSendNextFrame()
{
    if (!d->poSequence || d->bFinished)
        return;
    if (d->oCurrent == d->poSequence->end()) {
        d->bFinished = true;
        accept();
        return;
    }
    d->oTimer.setInterval(nTimeOutMs(d->oCurrent->dTimeOutMs));
    d->vShowStep();
    const quint64 nFrame = ++d->nFramesSent;
    Q_EMIT vSendData(std::string(d->oCurrent->oFrame));
    // Start the clock only if no reply came back while the frame was being sent.
    if (!d->bFinished && nFrame == d->nFramesSent)
        d->oTimer.start();
}

void DataFrameSender::vDataReceived(std::string oReply)
{
    if (!d->poSequence || d->bFinished || d->oCurrent == d->poSequence->end())
        return;
    d->oTimer.stop();
    const QRegularExpression oPattern(QString::fromLatin1(d->oCurrent->oReplyPattern.data(),
                                                          static_cast<int>(d->oCurrent->oReplyPattern.size())));
    // An invalid pattern matches nothing.
    const QRegularExpressionMatch oMatch = oPattern.isValid()
        ? oPattern.match(QString::fromLatin1(oReply.data(), static_cast<int>(oReply.size())), 0)
        : QRegularExpressionMatch();
    if (!oMatch.hasMatch()) {
        d->bFinished = true;
        d->bSucceded = false;
        d->nErrorCause = eNoMatch;
        reject();
        return;
    }
    d->oCurrent->oMatchedReply = oMatch.captured(0).toLatin1().toStdString();
    d->nErrorCause = eNone;
    ++d->oCurrent;
    vSendNextFrame();
}

void DataFrameSender::accept()
{
    d->vCloseWaiting(1);
}

void DataFrameSender::reject()
{
    d->vCloseWaiting(0);
}

void DataFrameSender::vTimeOut()
{
    if (d->bFinished)
        return;
    d->bSucceded = false;
    d->bFinished = true;
    d->nErrorCause = eTimeOut;
    reject();
}

bool DataFrameSender::bIsFinished() const
{
    return d->bFinished;
}

bool DataFrameSender::bSucceded() const
{
    return d->bSucceded;
}

int DataFrameSender::eErrorCause() const
{
    return d->nErrorCause;
}

void DataFrameSender::setShowUi(bool bShowUi)
{
    if (d->bWaiting || bShowUi == d->bShowUi)
        return;
    d->vDestroyWaiting();
    d->bShowUi = bShowUi;
    d->vCreateWaiting();
}

bool DataFrameSender::isShowUi() const
{
    return d->bShowUi;
}

} // namespace Utils
