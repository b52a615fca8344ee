// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_MAINWINDOW_H
#define DEMO_MAINWINDOW_H

#include <QMainWindow>

class DemoPage;
class QTabWidget;

namespace Utils {
namespace LoggingSystem {
class LogViewer;
}
} // namespace Utils

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    void start();
    //! Saves a PNG of every page and the pages' own artifacts into \a outputDir.
    QStringList writeScreenshots(const QString &outputDir);

private:
    QTabWidget *m_tabs;
    QList<DemoPage *> m_pages;
    Utils::LoggingSystem::LogViewer *m_logViewer = nullptr;
};

#endif // DEMO_MAINWINDOW_H
