// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_SETTINGSPAGE_H
#define DEMO_SETTINGSPAGE_H

#include "demopage.h"

class QLabel;
class QtProperty;
class QtTreePropertyBrowser;

namespace Utils {
class ButtonManager;
class FilePathManager;
} // namespace Utils

//! A small property panel with the library's two editor types: buttons and file paths.
class SettingsPage : public DemoPage
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget *parent = nullptr);
    ~SettingsPage() override;

    QString title() const override { return tr("Settings"); }
    void start() override;

private:
    Utils::ButtonManager *m_buttons;
    Utils::FilePathManager *m_paths;
    QtTreePropertyBrowser *m_browser;
    QLabel *m_events;
    QtProperty *m_teach = nullptr;
    QtProperty *m_parameters = nullptr;
};

#endif // DEMO_SETTINGSPAGE_H
