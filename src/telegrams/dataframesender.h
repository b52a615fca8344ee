// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_DATAFRAMESENDER_H
#define UTILS_DATAFRAMESENDER_H

#include "utils_export.h"

#include <QDialog>
#include <QObject>

#include <list>
#include <memory>
#include <string>

class QLabel;

namespace Utils {

/*!
    \brief One step of a scripted exchange with a sensor.

    The sender puts oFrame on the line, waits at most dTimeOutMs (truncated to
    whole milliseconds) for a reply and searches it for oReplyPattern, a
    case-sensitive regular expression. The whole matched text is kept in
    oMatchedReply. Frames, patterns and replies are byte strings; the matching
    sees every byte as one Latin-1 character, so binary replies match byte by
    byte (write a NUL byte as \\x00 in the pattern).
*/
struct DataSequence
{
    std::string oFrame;
    std::string oReplyPattern;
    std::string oMatchedReply;
    double dTimeOutMs = 0.0;
};

/*!
    \brief The small grey frame shown while a DataFrameSender waits.

    101 by 31 pixels, frameless, with a grid layout holding a label that tells
    which step runs.
*/
class UTILS_EXPORT DataFrameSenderUi : public QDialog
{
    Q_OBJECT

public:
    explicit DataFrameSenderUi(QWidget *parent = nullptr);
    ~DataFrameSenderUi() override;

    //! Shows "Step n/total" in the frame.
    void vShowStep(int nStep, int nSteps);

public Q_SLOTS:
    //! Does nothing: the frame cannot be closed by the user, only by its sender.
    void reject() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_poLabel;
};

/*!
    \brief Plays a list of DataSequence steps with a sensor.

    nStart() emits vSendData() with the current step's frame and blocks until the
    sequence ends, either in the modal DataFrameSenderUi (setShowUi(true), the
    default) or in a private event loop without a window. The host puts each
    frame on the line and hands every reply to vDataReceived(). A matching reply
    advances to the next step; a reply that does not match (eErrorCause() 2) or
    a step that times out (eErrorCause() 1) ends the run. Replies that arrive
    after the end are ignored.

    nStart() returns 1 after the last step and 0 after a failure (the dialog's
    Accepted and Rejected). bSucceded() is never set by a run, so it stays false
    even after a complete one: judge a run by nStart() or by eErrorCause() == 0.
    vFinished() is declared for listeners but not emitted by the sender.

    The step list belongs to the caller and must outlive the sender; the current
    step is kept across runs, so nStart() after a complete run ends at once.
*/
class UTILS_EXPORT DataFrameSender : public QObject
{
    Q_OBJECT

public:
    //! Why the last run ended.
    enum ErrorCause { eNone = 0, eTimeOut = 1, eNoMatch = 2 };

    //! \a poSequence may be null; \a parent is the dialog's parent and the sender's.
    DataFrameSender(std::list<DataSequence> *poSequence, QWidget *parent = nullptr);
    ~DataFrameSender() override;

    /*!
        Runs the sequence from the current step and returns when it ends. With no
        step list it returns 1 at once. Replies that the host delivers from inside
        its vSendData() slot are handled too: then nStart() returns without waiting.
    */
    int nStart();

    //! The host hands every reply here.
    void vDataReceived(std::string oReply);

    bool bIsFinished() const;
    bool bSucceded() const;
    int eErrorCause() const;

    //! Chooses the dialog or the hidden event loop; ignored while a run waits.
    void setShowUi(bool bShowUi);
    bool isShowUi() const;

Q_SIGNALS:
    //! The frame of the current step, for the host to send.
    void vSendData(std::string oFrame);
    //! Declared for listeners; the sender itself does not emit it.
    void vFinished(bool bSuccess);

protected Q_SLOTS:
    void vSendNextFrame();
    //! Ends the wait as a success (dialog accepted, event loop exit code 1).
    void accept();
    //! Ends the wait as a failure (dialog rejected, event loop exit code 0).
    void reject();
    void vTimeOut();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_DATAFRAMESENDER_H
