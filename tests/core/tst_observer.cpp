// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/dataevent.h"
#include "core/observer.h"

#include <QtTest>

#include <string>
#include <vector>

using Utils::Observable;
using Utils::Observer;

namespace {

// Records every notification into a shared journal as (observer name, subject).
struct Call
{
    char who;
    void *subject;
};

class Recorder : public Observer
{
public:
    Recorder(char name, std::vector<Call> *journal)
        : m_name(name)
        , m_journal(journal)
    {
    }
    void update(void *subject) override { m_journal->push_back({m_name, subject}); }

private:
    char m_name;
    std::vector<Call> *m_journal;
};

QString names(const std::vector<Call> &journal)
{
    QString out;
    for (const Call &call : journal)
        out += QLatin1Char(call.who);
    return out;
}

} // namespace

class tst_Observer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notifiesInAttachmentOrderWithSubject();
    void attachIgnoresDuplicatesAndNull();
    void detach();
    void copiesTakeTheObserverList();
    void dataEvent();
};

void tst_Observer::notifiesInAttachmentOrderWithSubject()
{
    std::vector<Call> journal;
    Recorder a('A', &journal), b('B', &journal), c('C', &journal);
    Observable subject;
    subject.notify(); // nobody attached: nothing happens
    QVERIFY(journal.empty());

    subject.attach(&a);
    subject.attach(&b);
    subject.attach(&c);
    subject.notify();
    QCOMPARE(names(journal), QStringLiteral("ABC"));
    for (const Call &call : journal)
        QCOMPARE(call.subject, static_cast<void *>(&subject));
}

void tst_Observer::attachIgnoresDuplicatesAndNull()
{
    std::vector<Call> journal;
    Recorder a('A', &journal), b('B', &journal);
    Observable subject;
    subject.attach(&a);
    subject.attach(nullptr);
    subject.attach(&b);
    subject.attach(&a); // already there: keeps its first place
    subject.notify();
    QCOMPARE(names(journal), QStringLiteral("AB"));
}

void tst_Observer::detach()
{
    std::vector<Call> journal;
    Recorder a('A', &journal), b('B', &journal), c('C', &journal), stranger('X', &journal);
    Observable subject;
    subject.attach(&a);
    subject.attach(&b);
    subject.attach(&c);

    subject.detach(&stranger);
    subject.detach(nullptr);
    subject.notify();
    QCOMPARE(names(journal), QStringLiteral("ABC"));

    journal.clear();
    subject.detach(&b);
    subject.notify();
    QCOMPARE(names(journal), QStringLiteral("AC"));

    // Re-attaching after a detach appends at the end.
    journal.clear();
    subject.attach(&b);
    subject.notify();
    QCOMPARE(names(journal), QStringLiteral("ACB"));
}

void tst_Observer::copiesTakeTheObserverList()
{
    std::vector<Call> journal;
    Recorder a('A', &journal), b('B', &journal), c('C', &journal);
    Observable source;
    source.attach(&a);
    source.attach(&b);

    Observable copy(source);
    source.attach(&c); // later changes of the source do not reach the copy
    copy.notify();
    QCOMPARE(names(journal), QStringLiteral("AB"));
    QCOMPARE(journal.front().subject, static_cast<void *>(&copy));

    journal.clear();
    Observable assigned;
    assigned.attach(&c);
    assigned = source; // replaces, does not merge
    assigned.notify();
    QCOMPARE(names(journal), QStringLiteral("ABC"));

    journal.clear();
    Observable &self = assigned;
    assigned = self;
    assigned.notify();
    QCOMPARE(names(journal), QStringLiteral("ABC"));

    // An observable destroyed before its observers just forgets them.
    {
        Observable shortLived;
        shortLived.attach(&a);
    }
    journal.clear();
    source.notify();
    QCOMPARE(names(journal), QStringLiteral("ABC"));
}

void tst_Observer::dataEvent()
{
    const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    Utils::DataEvent event(std::string("abc"), type);
    QCOMPARE(event.type(), type);
    QCOMPARE(event.data(), std::string("abc"));

    const std::string binary("a\0b", 3);
    Utils::DataEvent copy(event);
    event.setData(binary);
    QCOMPARE(event.data(), binary); // embedded zero bytes survive
    QCOMPARE(copy.data(), std::string("abc"));
    QCOMPARE(copy.type(), type);

    Utils::DataEvent other(std::string("x"), QEvent::User);
    other = event;
    QCOMPARE(other.type(), type);
    QCOMPARE(other.data(), binary);

    event.setData(std::string());
    QCOMPARE(event.data(), std::string());

    // Delivered through the event queue like any other event.
    class Sink : public QObject
    {
    public:
        std::string received;
        bool event(QEvent *e) override
        {
            if (e->type() >= QEvent::User) {
                received = static_cast<Utils::DataEvent *>(e)->data();
                return true;
            }
            return QObject::event(e);
        }
    } sink;
    QCoreApplication::postEvent(&sink, new Utils::DataEvent(std::string("sample 42"), type));
    QCoreApplication::sendPostedEvents(&sink);
    QCOMPARE(sink.received, std::string("sample 42"));
}

QTEST_GUILESS_MAIN(tst_Observer)
#include "tst_observer.moc"
