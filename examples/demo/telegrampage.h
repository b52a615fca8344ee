// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_TELEGRAMPAGE_H
#define DEMO_TELEGRAMPAGE_H

#include "demopage.h"

#include <list>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;
class TelegramSensor;

namespace Utils {
struct DataSequence;
}

/*!
    The sensor console: a scripted exchange with the simulated sensor played
    through Utils::DataFrameSender (a hello with protocol-header texts, then
    identification, process data, parameter configuration and a full read-out
    as binary data telegrams), with every frame logged and the replies decoded.
*/
class TelegramPage : public DemoPage
{
    Q_OBJECT

public:
    explicit TelegramPage(QWidget *parent = nullptr);
    ~TelegramPage() override;

    QString title() const override { return tr("Sensor console"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void runExchange();
    void log(const QString &line);
    QTreeWidgetItem *addGroup(const QString &title, const QString &value = QString());
    void showReplies(const std::list<Utils::DataSequence> &steps);

    TelegramSensor *m_sensor;
    QPlainTextEdit *m_console;
    QTreeWidget *m_decoded;
    QLabel *m_status;
    QPushButton *m_runButton;
    QCheckBox *m_showFrame;
    QTimer *m_repeat;
    bool m_running = false;
    int m_runs = 0;
};

#endif // DEMO_TELEGRAMPAGE_H
