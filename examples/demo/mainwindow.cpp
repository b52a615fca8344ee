// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainwindow.h"

#include "demopage.h"

#include <core/logviewer.h>

#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QStatusBar>
#include <QTabWidget>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_tabs(new QTabWidget(this))
{
    setWindowTitle(tr("Sensor utils demo"));
    setCentralWidget(m_tabs);
    m_pages = createDemoPages(m_tabs);
    for (DemoPage *page : qAsConst(m_pages))
        m_tabs->addTab(page, page->title());
    statusBar()->showMessage(tr("Simulated laser distance sensor"));

    // The log viewer: the start-up log, then every line the pages hand to the logger.
    const QString startLog = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("utils-demo-start.log"));
    QFile file(startLog);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QDateTime::currentDateTime().toString(QStringLiteral("hh:mm:ss.zzz | dd.MM.yyyy")).toUtf8()
                   + " | INFO | Demo | started\n");
        file.close();
    }
    m_logViewer = new Utils::LoggingSystem::LogViewer(this, startLog);
    addDockWidget(Qt::BottomDockWidgetArea, m_logViewer);
    connect(m_logViewer, &Utils::LoggingSystem::LogViewer::vAboutToClose, m_logViewer, &QWidget::hide);
    resize(1100, 720);
}

void MainWindow::start()
{
    for (DemoPage *page : qAsConst(m_pages))
        page->start();
}

QStringList MainWindow::writeScreenshots(const QString &outputDir)
{
    QDir dir(outputDir);
    dir.mkpath(QStringLiteral("."));
    QStringList written;
    const QString viewerPath = dir.absoluteFilePath(QStringLiteral("demo-log-viewer.png"));
    if (m_logViewer->grab().save(viewerPath))
        written << viewerPath;
    for (int i = 0; i < m_pages.size(); ++i) {
        m_tabs->setCurrentIndex(i);
        QApplication::processEvents();
        const QString name = QStringLiteral("demo-%1-%2.png")
                                 .arg(i + 1, 2, 10, QLatin1Char('0'))
                                 .arg(m_pages.at(i)->objectName());
        const QString path = dir.absoluteFilePath(name);
        if (grab().save(path))
            written << path;
        m_pages.at(i)->writeArtifacts(dir, &written);
    }
    return written;
}
