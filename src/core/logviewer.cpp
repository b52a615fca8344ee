// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/logviewer.h"

#include "core/log.h"
#include "widgets/filterlineedit.h"

#include <QCloseEvent>
#include <QDate>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTimer>

namespace Utils {
namespace LoggingSystem {

namespace {

constexpr int kTickMs = 500;
//! Paragraphs the view keeps; older ones go.
constexpr int kMaxParagraphs = 20000;
//! Lines shown per tick before the rest waits for a moment.
constexpr int kMaxLinesPerTick = 2000;

//! The form of the viewer, built onto the dock.
struct LogViewerUi
{
    QWidget *dockWidgetContents = nullptr;
    QGridLayout *gridLayout = nullptr;
    FilterLineEdit *filterEdit = nullptr;
    QPlainTextEdit *textBrowser = nullptr;
    QPushButton *saveAs = nullptr;
    QPushButton *clearButton = nullptr;

    void setupUi(QDockWidget *dock)
    {
        if (dock->objectName().isEmpty())
            dock->setObjectName(QStringLiteral("LogViewerUi"));
        dock->resize(487, 413);
        dockWidgetContents = new QWidget(dock);
        dockWidgetContents->setObjectName(QStringLiteral("dockWidgetContents"));
        gridLayout = new QGridLayout(dockWidgetContents);
        gridLayout->setContentsMargins(2, 0, 2, 5);
        filterEdit = new FilterLineEdit(dockWidgetContents);
        filterEdit->setObjectName(QStringLiteral("filterEdit"));
        gridLayout->addWidget(filterEdit, 0, 0);
        textBrowser = new QPlainTextEdit(dockWidgetContents);
        textBrowser->setObjectName(QStringLiteral("textBrowser"));
        textBrowser->setReadOnly(true);
        textBrowser->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        textBrowser->setUndoRedoEnabled(false);
        // A plain-text view with formats per paragraph: lines stay text, and
        // the oldest paragraphs go cheaply once the view holds kMaxParagraphs.
        textBrowser->setMaximumBlockCount(kMaxParagraphs);
        gridLayout->addWidget(textBrowser, 1, 0);
        auto *buttons = new QHBoxLayout;
        saveAs = new QPushButton(dockWidgetContents);
        saveAs->setObjectName(QStringLiteral("SaveAs"));
        clearButton = new QPushButton(dockWidgetContents);
        clearButton->setObjectName(QStringLiteral("clearButton"));
        buttons->addWidget(saveAs);
        buttons->addWidget(clearButton);
        gridLayout->addLayout(buttons, 2, 0);
        dock->setWidget(dockWidgetContents);
        retranslateUi(dock);
    }

    void retranslateUi(QDockWidget *dock)
    {
        dock->setWindowTitle(LogViewer::tr("Log View "));
        filterEdit->setPlaceholderText(LogViewer::tr("Filter log entries"));
        saveAs->setText(LogViewer::tr("Save Log As..."));
        clearButton->setText(LogViewer::tr("Clear"));
    }
};

} // namespace

struct LogViewer::Private
{
    LogViewerUi ui;
    QString path;
    Log *log = nullptr;
    QTimer *timer = nullptr;
    QString filter;
    QRegularExpression expression;
    QString buffer;
};

LogViewer::LogViewer(QWidget *parent, const QString &logFilePath)
    : QDockWidget(tr("Log viewer"), parent)
    , d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("LogViewer"));
    d->ui.setupUi(this);
    vFilterChanged(QString());

    d->path = logFilePath;
    QFile file(logFilePath);
    if (file.open(QIODevice::ReadOnly)) {
        // The file's text as it is: a log line with markup stays text.
        d->ui.textBrowser->setPlainText(QString::fromUtf8(file.readAll()));
        file.close();
    }

    d->log = Log::requestInstance();
    if (d->log)
        connect(d->log, &Log::emitLastLogged, this, &LogViewer::appendLog);

    bool ok = true;
    ok &= bool(connect(d->ui.saveAs, &QPushButton::released, this, &LogViewer::vSaveAs));
    ok &= bool(connect(this, &LogViewer::emitAppendText, this, &LogViewer::slotAppendText));
    ok &= bool(connect(d->ui.filterEdit, &FilterLineEdit::filterChanged, this, &LogViewer::vFilterChanged));
    ok &= bool(connect(d->ui.clearButton, &QPushButton::clicked, this, &LogViewer::buttonClear));
    Q_ASSERT(ok);
    Q_UNUSED(ok)

    d->timer = new QTimer(this);
    d->timer->setInterval(kTickMs);
    connect(d->timer, &QTimer::timeout, this, &LogViewer::readBufer);
    d->timer->start();
    show();
}

LogViewer::~LogViewer()
{
    // The connection to the logger goes with this object; the reference is given back.
    if (d->log)
        Log::releaseInstance(false);
}

FilterLineEdit *LogViewer::poFilterEdit() const
{
    return d->ui.filterEdit;
}

QPlainTextEdit *LogViewer::poTextBrowser() const
{
    return d->ui.textBrowser;
}

void LogViewer::appendLog(const QString &line)
{
    if (d->filter.isEmpty() || d->expression.match(line).hasMatch())
        Q_EMIT emitAppendText(line);
}

void LogViewer::slotAppendText(const QString &text)
{
    d->buffer += text;
}

void LogViewer::vFilterChanged(const QString &pattern)
{
    d->filter = pattern;
    d->expression = QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
    // An invalid expression matches nothing (QRegularExpression::match() fails for it).
}

void LogViewer::readBufer()
{
    if (d->buffer.isEmpty())
        return;
    d->timer->stop();
    QPlainTextEdit *view = d->ui.textBrowser;
    // One tick shows at most kMaxLinesPerTick lines; the rest follow at once after the window had a turn.
    int taken = 0;
    int cut = 0;
    for (; cut < d->buffer.size() && taken < kMaxLinesPerTick; ++cut) {
        if (d->buffer.at(cut) == QLatin1Char('\n'))
            ++taken;
    }
    const QStringList pieces = d->buffer.left(cut).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    d->buffer.remove(0, cut);

    // The view's own format is left as it was after the batch.
    const QTextCharFormat before = view->currentCharFormat();
    const QColor colour = before.foreground().color();
    QTextCursor cursor(view->document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    QTextCharFormat format = cursor.charFormat();
    format.setForeground(colour);
    bool first = view->document()->isEmpty();
    for (const QString &piece : pieces) {
        if (piece.contains(QLatin1String("ERROR")))
            format.setForeground(QColor(Qt::red));
        else if (piece.contains(QLatin1String("WARNING")))
            format.setForeground(QColor(193, 198, 19, 255));
        else if (piece.contains(QLatin1String("INFO")))
            format.setForeground(QColor(Qt::darkBlue));
        // Otherwise the colour of the line before, in this batch.
        if (!first)
            cursor.insertBlock();
        first = false;
        cursor.insertText(piece, format);
    }
    cursor.endEditBlock();
    view->setCurrentCharFormat(before);
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
    d->timer->start(d->buffer.isEmpty() ? kTickMs : 0);
}

void LogViewer::vSaveAs()
{
    const QString proposed = QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")) + QStringLiteral("-QuendaLog.txt");
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Save As..."), proposed, QStringLiteral("*.txt"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    // Not truncated first: saving over a longer file leaves its tail in place.
    if (!file.open(QIODevice::ReadWrite))
        return;
    file.write(d->ui.textBrowser->toPlainText().toLatin1());
    file.close();
}

void LogViewer::buttonClear()
{
    const QMessageBox::StandardButton answer = QMessageBox::warning(
        this, tr("Clear log"), tr("Are you sure ?"), QMessageBox::No | QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        d->ui.textBrowser->clear();
}

void LogViewer::closeEvent(QCloseEvent *event)
{
    Q_EMIT vAboutToClose();
    event->ignore();
}

void LogViewer::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->ui.retranslateUi(this);
    QDockWidget::changeEvent(event);
}

} // namespace LoggingSystem
} // namespace Utils
