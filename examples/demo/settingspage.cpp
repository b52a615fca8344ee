// SPDX-License-Identifier: LGPL-2.1-or-later
#include "settingspage.h"

#include <core/log.h>
#include <qttreepropertybrowser.h>
#include <widgets/buttonfactory.h>
#include <widgets/buttonmanager.h>
#include <widgets/fileeditfactory.h>
#include <widgets/filepathmanager.h>

#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>

SettingsPage::SettingsPage(QWidget *parent)
    : DemoPage(parent)
    , m_buttons(new Utils::ButtonManager(this))
    , m_paths(new Utils::FilePathManager(this))
    , m_browser(new QtTreePropertyBrowser(this))
    , m_events(new QLabel(this))
{
    setObjectName(QStringLiteral("settings"));
    m_browser->setFactoryForManager(m_buttons, new Utils::ButtonFactory(this));
    m_browser->setFactoryForManager(m_paths, new Utils::FileEditFactory(this));

    m_teach = m_buttons->addProperty(tr("Teach-in"));
    m_buttons->setValue(m_teach, tr("Teach switching point"));
    m_parameters = m_paths->addProperty(tr("Parameter set"));
    m_paths->setFilter(m_parameters, tr("Parameter sets (*.xml)"));
    m_paths->setValue(m_parameters, QStringLiteral("/etc/sensor/laser-distance.xml"));
    QtProperty *log = m_paths->addProperty(tr("Log file"));
    m_paths->setFilter(log, tr("Log files (*.log *.txt)"));
    m_paths->setValue(log, QStringLiteral("/var/log/sensor.log"));
    for (QtProperty *property : {m_teach, m_parameters, log})
        m_browser->addProperty(property);

    m_events->setWordWrap(true);
    m_events->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_events->setText(tr("Click a row to edit it: the button reports its click, the path editor its path "
                         "(typed, or chosen with \"...\")."));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_browser, 2);
    layout->addWidget(m_events, 1);

    // What the host would do with the panel: log it, so the log viewer shows it too.
    connect(m_buttons, &Utils::ButtonManager::buttonClicked, this, [this](QtProperty *property) {
        const QString line = QDateTime::currentDateTime().toString(QStringLiteral("hh:mm:ss.zzz | dd.MM.yyyy"))
            + QStringLiteral(" | INFO | Settings | %1 clicked\n").arg(property->propertyName());
        m_events->setText(line);
        auto *logger = Utils::LoggingSystem::Log::requestInstance();
        Q_EMIT logger->emitLastLogged(line);
        Utils::LoggingSystem::Log::releaseInstance(false);
    });
    connect(m_paths, &Utils::FilePathManager::valueChanged, this, [this](QtProperty *property, const QString &path) {
        m_events->setText(tr("%1: %2").arg(property->propertyName(), path));
    });
}

SettingsPage::~SettingsPage() = default;

void SettingsPage::start()
{
    // Open the path editor of the parameter set, as a user who clicked its row.
    m_browser->setCurrentItem(m_browser->items(m_parameters).value(0));
}

DEMO_REGISTER_PAGE(SettingsPage, 9)
