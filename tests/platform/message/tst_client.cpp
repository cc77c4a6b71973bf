// The phone's message client over a scripted handset.
#include "support/PhoneTest.h"

#include "handset/Handset.h"
#include "handset/Status.h"
#include "message/PHONE_MsgClient.h"

#include <QtCore/QPointer>

#include <cstring>
#include <limits>
#include <memory>

class TestClient : public PhoneTest
{
    Q_OBJECT

private slots:
    void refreshingAsksTheHandsetOnce();
    void aConfirmedResetIsPassedOn();
    void anUnconfirmedResetAsksForNothing();
    void codesArePassedOn();
    void withoutAHandsetNothingIsAvailable();
    void withoutDataCallsNothingIsAvailable();
    void itHasTheNameItIsGivenOrNone();
    void itIsItsParentsAndNobodysWithoutOne();
    void makingAndDeletingItAsksForNothing();
    void itSaysItsClass();
};

void TestClient::refreshingAsksTheHandsetOnce()
{
    PHONE_MsgClient client(nullptr);
    QCOMPARE(client.getTotalByteAndConnectedDuration(), int(handset::Success));
    QCOMPARE(journal.lines(), QStringList{QStringLiteral("DataCalls::refreshTotals")});
}

void TestClient::aConfirmedResetIsPassedOn()
{
    PHONE_MsgClient client(nullptr);
    QCOMPARE(client.resetTotalDuration(true), int(handset::Success));
    QCOMPARE(journal.lines(), QStringList{QStringLiteral("DataCalls::resetTotalDuration")});
}

void TestClient::anUnconfirmedResetAsksForNothing()
{
    PHONE_MsgClient client(nullptr);
    script().failAll(9);
    QCOMPARE(client.resetTotalDuration(false), int(handset::Success));
    QCOMPARE(journal.lines(), QStringList());
}

void TestClient::codesArePassedOn()
{
    PHONE_MsgClient client(nullptr);
    for (const int code : {1, 2, 3, 4, 77, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        script().failAll(code);
        QCOMPARE(client.getTotalByteAndConnectedDuration(), code);
        QCOMPARE(client.resetTotalDuration(true), code);
    }
}

void TestClient::withoutAHandsetNothingIsAvailable()
{
    PHONE_MsgClient client(nullptr);
    handset::install(nullptr);
    QCOMPARE(client.getTotalByteAndConnectedDuration(), int(handset::NotAvailable));
    QCOMPARE(client.resetTotalDuration(true), int(handset::NotAvailable));
}

void TestClient::withoutDataCallsNothingIsAvailable()
{
    PHONE_MsgClient client(nullptr);
    (*PhoneTest::handset)->takeAway(QStringLiteral("DataCalls"));
    QCOMPARE(client.getTotalByteAndConnectedDuration(), int(handset::NotAvailable));
    QCOMPARE(client.resetTotalDuration(true), int(handset::NotAvailable));
    QCOMPARE(journal.lines(), QStringList());
}

void TestClient::itHasTheNameItIsGivenOrNone()
{
    QCOMPARE(PHONE_MsgClient(nullptr, "caf\xe9").objectName(), QString::fromLatin1("caf\xe9"));
    QVERIFY(PHONE_MsgClient(nullptr, nullptr).objectName().isEmpty());
    QVERIFY(PHONE_MsgClient(nullptr).objectName().isEmpty());
}

void TestClient::itIsItsParentsAndNobodysWithoutOne()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<PHONE_MsgClient> client = new PHONE_MsgClient(parent.get());
    QCOMPARE(client->parent(), parent.get());
    parent.reset();
    QVERIFY(!client);
    QCOMPARE(PHONE_MsgClient(nullptr).parent(), nullptr);
}

void TestClient::makingAndDeletingItAsksForNothing()
{
    {
        const PHONE_MsgClient client(nullptr);
    }
    QCOMPARE(journal.lines(), QStringList());
}

void TestClient::itSaysItsClass()
{
    const PHONE_MsgClient client(nullptr);
    QCOMPARE(QByteArray(client.className()), QByteArray("PHONE_MsgClient"));
    QCOMPARE(QByteArray(client.metaObject()->className()), QByteArray("PHONE_MsgClient"));
}

KAV_TEST_GROUP(TestClient, QApplication);
#include "tst_client.moc"
