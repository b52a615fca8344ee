// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainwindow.h"

#include "demopage.h"

#include <QApplication>
#include <QDir>
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
