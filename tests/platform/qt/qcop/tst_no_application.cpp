// Channels before there is an application object, or after: they go within the process alone.
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"
#include "support/TestGroup.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>

class TestNoApplication : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsSentToOtherProcesses();
};

void TestNoApplication::nothingIsSentToOtherProcesses()
{
    QVERIFY(!QCoreApplication::instance());
    QVERIFY(!QCopBus::instance());
    const QCopChannel channel("/KAV/phone");
    QVERIFY(!QCopChannel::send("/KAV/phone", "message"));
}

KAV_TEST_GROUP(TestNoApplication, NoApplication);
#include "tst_no_application.moc"
