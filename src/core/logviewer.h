// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LOGVIEWER_H
#define UTILS_LOGVIEWER_H

#include "utils_export.h"

#include <QDockWidget>

#include <memory>

class QPlainTextEdit;

namespace Utils {

class FilterLineEdit;

namespace LoggingSystem {

class Log;

/*!
    \brief A dockable view of the log: the log file as it was, then the live
    lines the host hands to the logger, filtered and coloured by level.

    At construction the viewer shows the text of the log file it is given, then
    follows the logger's emitLastLogged(): each line that matches the filter (a
    case-insensitive regular expression; empty matches all; an invalid one
    matches nothing) is collected and shown at the next half-second tick, as a
    paragraph of its own per line feed. Lines containing "ERROR" are red,
    "WARNING" olive-yellow, "INFO" dark blue; a line with none of these takes the
    colour of the line before it in the same batch. Lines are shown as plain
    text, exactly as logged: markup in a line is not interpreted.

    The view ("textBrowser") is a read-only QPlainTextEdit with a text colour
    per paragraph. It keeps the newest 20,000 paragraphs (older ones go), and a tick
    shows at most 2,000 lines before it lets the window breathe, so a flood of
    lines neither eats memory nor freezes the window.

    "Save Log As..." writes the view's text as Latin-1 into a file the user
    chooses (proposed "dd-MM-yyyy-QuendaLog.txt"); the file is not truncated
    first, so saving over a longer file leaves its tail in place. "Clear" asks
    "Are you sure ?" before it empties the view. Closing the dock emits
    vAboutToClose() and leaves it open: the host decides.
*/
class UTILS_EXPORT LogViewer : public QDockWidget
{
    Q_OBJECT

public:
    //! The log file at \a logFilePath is shown at once; the dock takes a reference to the logger.
    LogViewer(QWidget *parent, const QString &logFilePath);
    ~LogViewer() override;

    FilterLineEdit *poFilterEdit() const;
    QPlainTextEdit *poTextBrowser() const;

Q_SIGNALS:
    //! A line that passed the filter.
    void emitAppendText(const QString &text);
    //! The user asked to close the dock; it stays open.
    void vAboutToClose();

public Q_SLOTS:
    //! A finished log line: kept for the next tick when it matches the filter.
    void appendLog(const QString &line);
    //! Adds \a text to the lines waiting for the next tick, as it is.
    void slotAppendText(const QString &text);
    //! The filter for lines that arrive from now on.
    void vFilterChanged(const QString &pattern);
    void vSaveAs();
    void buttonClear();
    //! The tick: shows the waiting lines, coloured by level.
    void readBufer();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(LogViewer)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace LoggingSystem
} // namespace Utils

#endif // UTILS_LOGVIEWER_H
