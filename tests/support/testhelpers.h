// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_TESTHELPERS_H
#define UTILS_TESTS_TESTHELPERS_H

#include <QByteArray>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>
#include <QWidget>

#include <ctime>

namespace TestSupport {

//! Shows \a window at \a size and waits until the window system exposed it.
inline bool show(QWidget *window, const QSize &size)
{
    window->resize(size);
    window->show();
    return QTest::qWaitForWindowExposed(window);
}

//! Lays \a widget out in \a host, its parent, as an application embeds it, and shows the host.
inline bool showIn(QWidget *host, QWidget *widget, const QSize &size)
{
    (new QVBoxLayout(host))->addWidget(widget);
    return show(host, size);
}

/*!
    Runs the event loop until \a ms have passed. Unlike QTest::qWait, every timer
    that fell due before then has been delivered when it returns, however late a
    busy machine (a sanitizer build, parallel tests) lets the loop run: timers are
    delivered in the order they fall due, and this wait ends on a timer of its own.
*/
inline void waitForTimers(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/*!
    The library's German translation, installed for the object's lifetime.
    Widgets hear of the change by a posted event: compare with QTRY_COMPARE.
*/
class GermanTranslation
{
public:
    GermanTranslation()
    {
        m_loaded = m_translator.load(QStringLiteral(":/translations/utils_de.qm"))
            && QCoreApplication::installTranslator(&m_translator);
    }
    ~GermanTranslation() { QCoreApplication::removeTranslator(&m_translator); }
    bool isLoaded() const { return m_loaded; }

private:
    Q_DISABLE_COPY(GermanTranslation)
    QTranslator m_translator;
    bool m_loaded = false;
};

/*!
    Sets the time zone (TZ; POSIX rules such as "CET-1CEST,M3.5.0,M10.5.0/3"
    need no zone database) and gives the previous one back when it goes. With
    \a reload false the C library is not told (tzset), so that a test can see
    whether the code under test reloads the zone itself.
*/
class Zone
{
public:
    explicit Zone(const QByteArray &zone, bool reload = true)
        : m_had(qEnvironmentVariableIsSet("TZ"))
        , m_previous(qgetenv("TZ"))
    {
        qputenv("TZ", zone);
        if (reload)
            tzset();
    }
    ~Zone()
    {
        if (m_had)
            qputenv("TZ", m_previous);
        else
            qunsetenv("TZ");
        tzset();
    }

private:
    Q_DISABLE_COPY(Zone)
    bool m_had;
    QByteArray m_previous;
};

} // namespace TestSupport

#endif // UTILS_TESTS_TESTHELPERS_H
