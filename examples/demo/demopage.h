// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_DEMOPAGE_H
#define DEMO_DEMOPAGE_H

#include <QDir>
#include <QStringList>
#include <QWidget>

/*!
    One tab of the demo: a capability of the library shown as a host would use it.
    start() begins the page's simulation; writeArtifacts() lets a headless run
    save what the page produces (CSV, PDF, ...) and report the paths it wrote.
*/
class DemoPage : public QWidget
{
    Q_OBJECT

public:
    explicit DemoPage(QWidget *parent = nullptr)
        : QWidget(parent)
    {
    }

    virtual QString title() const = 0;
    virtual void start() {}
    virtual void writeArtifacts(const QDir &outputDir, QStringList *written)
    {
        Q_UNUSED(outputDir)
        Q_UNUSED(written)
    }
};

//! Creates every page of the demo, in tab order.
QList<DemoPage *> createDemoPages(QWidget *parent);

#endif // DEMO_DEMOPAGE_H
