// A library with channels goes out of use before the application ends, as with a plug-in that is unloaded.
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QLibrary>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

class TestUnload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theApplicationEndsWellAfterItsChannelsLibraryWasUnloaded();

private:
    PrivateBus bus;
};

// What breaks shows after the test: the application's end calls into the library.
void TestUnload::theApplicationEndsWellAfterItsChannelsLibraryWasUnloaded()
{
    using Send = bool (*)(const QByteArray &, const QByteArray &, const QByteArray &);
    QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/libkavqt.so.1"));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    const auto send = reinterpret_cast<Send>(library.resolve("_ZN11QCopChannel4sendERK10QByteArrayS2_S2_"));
    QVERIFY(send);
    QTRY_VERIFY_WITH_TIMEOUT(send("/KAV/phone", "message", "data"), 60000);
    QVERIFY(library.unload());
}

KAV_TEST_GROUP(TestUnload, QCoreApplication);
#include "tst_unload.moc"
