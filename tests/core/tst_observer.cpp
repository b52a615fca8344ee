// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/dataevent.h"
#include "core/observer.h"

#include <QtTest>

#include <string>

using Utils::Observable;

namespace {

// Appends its letter to a shared journal; checks it is handed the subject it expects.
class Recorder : public Utils::Observer
{
public:
    Recorder(char name, QString *journal)
        : m_name(name)
        , m_journal(journal)
    {
    }
    void update(void *subject) override
    {
        m_journal->append(QLatin1Char(m_name));
        lastSubject = subject;
    }
    void *lastSubject = nullptr;

private:
    char m_name;
    QString *m_journal;
};

} // namespace

class tst_Observer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attachDetachAndOrder()
    {
        QString journal;
        Recorder a('A', &journal), b('B', &journal), c('C', &journal), stranger('X', &journal);
        Observable subject;
        subject.notify(); // nobody attached
        QCOMPARE(journal, QString());

        subject.attach(&a);
        subject.attach(nullptr);
        subject.attach(&b);
        subject.attach(&c);
        subject.attach(&a); // already there: keeps its first place
        subject.notify();
        QCOMPARE(journal, QStringLiteral("ABC"));
        QCOMPARE(c.lastSubject, static_cast<void *>(&subject));

        journal.clear();
        subject.detach(&stranger);
        subject.detach(&b);
        subject.notify();
        QCOMPARE(journal, QStringLiteral("AC"));

        journal.clear();
        subject.attach(&b); // re-attached at the end
        subject.notify();
        QCOMPARE(journal, QStringLiteral("ACB"));
    }

    void copiesTakeTheObserverList()
    {
        QString journal;
        Recorder a('A', &journal), b('B', &journal), c('C', &journal);
        Observable source;
        source.attach(&a);
        source.attach(&b);

        Observable copy(source);
        source.attach(&c); // later changes of the source do not reach the copy
        copy.notify();
        QCOMPARE(journal, QStringLiteral("AB"));
        QCOMPARE(b.lastSubject, static_cast<void *>(&copy));

        journal.clear();
        Observable assigned;
        assigned.attach(&c);
        assigned = source; // replaces, does not merge
        Observable &self = assigned;
        assigned = self;
        assigned.notify();
        QCOMPARE(journal, QStringLiteral("ABC"));
    }

    void dataEvent()
    {
        const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
        Utils::DataEvent event(std::string("abc"), type);
        QCOMPARE(event.type(), type);
        QCOMPARE(event.data(), std::string("abc"));

        const std::string binary("a\0b", 3);
        Utils::DataEvent copy(event);
        event.setData(binary);
        QCOMPARE(copy.data(), std::string("abc"));

        Utils::DataEvent assigned(std::string("x"), QEvent::User);
        assigned = event;
        QCOMPARE(assigned.type(), type);
        QCOMPARE(assigned.data(), binary); // embedded zero bytes survive
    }
};

QTEST_GUILESS_MAIN(tst_Observer)
#include "tst_observer.moc"
