// The running program, read and worked over the desktop's accessibility bus.
#include "e2e/AtSpi.h"
#include "e2e/OwnServer.h"
#include "support/TestGroup.h"

#include <QtTest/QTest>

#include <algorithm>
#include <memory>

namespace {

constexpr int patience = 60'000;

QStringList namesOf(const QList<AtSpi::Element> &elements)
{
    QStringList names;
    for (const AtSpi::Element &element : elements)
        names << element.name;
    return names;
}

} // namespace

class TestScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void theWindowIsAFrame();
    void allScreensAreRead();
    void aQuestionIsAnsweredByItsSoftkey();
    void whatTheLineDoesIsTold();

private:
    std::optional<AtSpi::Element> waitFor(const char *role, const QString &name);
    void press(const char *role, const QString &name);
    QStringList rowsOf(const QString &title);

    std::unique_ptr<AtSpi> reader;
    std::unique_ptr<QProcess> host;
};

void TestScreenReader::initTestCase()
{
    reader = std::make_unique<AtSpi>();
    QVERIFY(reader->isRunning());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", reader->sessionBus());
    environment.remove("AT_SPI_BUS_ADDRESS");
    environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    host = std::make_unique<QProcess>();
    host->setProcessEnvironment(environment);
    host->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    endWithParent(*host);
    host->start(QStringLiteral(KAV_HOST), {"--state", "none"});
    QVERIFY(host->waitForStarted(patience));
    QVERIFY(waitFor("push button", "Dial"));
}

void TestScreenReader::cleanupTestCase()
{
    host->terminate();
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitCode(), 0);
    host.reset();
    reader.reset();
}

std::optional<AtSpi::Element> TestScreenReader::waitFor(const char *role, const QString &name)
{
    std::optional<AtSpi::Element> found;
    const auto isThere = [&] { return (found = reader->find(QString::fromLatin1(role), name)).has_value(); };
    if (!QTest::qWaitFor(isThere, patience))
        qInfo() << "on show:" << namesOf(reader->shown());
    return found;
}

// As soon as something can be done with it.
void TestScreenReader::press(const char *role, const QString &name)
{
    std::optional<AtSpi::Element> element;
    const auto isReady = [&] {
        element = reader->find(QString::fromLatin1(role), name);
        return element && element->has(AtSpi::Sensitive);
    };
    QVERIFY2(QTest::qWaitFor(isReady, patience), qPrintable(name));
    QVERIFY2(reader->press(*element), qPrintable(name));
}

QStringList TestScreenReader::rowsOf(const QString &title)
{
    const std::optional<AtSpi::Element> list = waitFor("list", title);
    return list ? reader->namesIn(*list) : QStringList();
}

void TestScreenReader::theWindowIsAFrame()
{
    QVERIFY(waitFor("frame", "Recent Calls"));
    // Without a window manager the focus is given by hand.
    QProcess focusing;
    focusing.start("xdotool",
                   {"search", "--sync", "--onlyvisible", "--name", "^Recent Calls$", "windowfocus", "--sync"});
    QVERIFY(focusing.waitForFinished(patience) && focusing.exitCode() == 0);
    const auto hasFocus = [this] {
        const std::optional<AtSpi::Element> row = reader->find("list item", "Call Times");
        return row && row->has(AtSpi::Focused) && row->has(AtSpi::Selected);
    };
    QVERIFY(QTest::qWaitFor(hasFocus, patience));
    QTRY_COMPARE_WITH_TIMEOUT(reader->lastFocus(), QStringLiteral("list item: Call Times"), patience);
}

// By its actions alone, and each as it is seen: a screen that is covered is not.
void TestScreenReader::allScreensAreRead()
{
    press("list item", "Call Times");
    QCOMPARE(rowsOf("Call Times"),
             (QStringList{"Last Call, 00:00:00", "Dialed Calls, 00:00:00", "Answered Calls, 00:00:00",
                          "Data Calls, 00:00:00", "All Calls, 00:00:00", "Lifetime Calls, 00:00:00"}));
    QVERIFY(!reader->find("list", "Recent Calls"));
    press("push button", "Back");
    press("list item", "Call Costs");
    QCOMPARE(rowsOf("Call Costs").first(), QStringLiteral("Credit Available, 0.00 units"));
    press("list item", "Call Cost Setup");
    QCOMPARE(rowsOf("Call-Cost Setup").last(), QStringLiteral("Cost Per Minute, 0 units"));
    QVERIFY(!reader->find("list", "Call Costs"));
    press("push button", "Back");
    QVERIFY(waitFor("list", "Call Costs"));
    press("push button", "Back");
    press("list item", "Data Times");
    QCOMPARE(rowsOf("Data Times").last(), QStringLiteral("Reset All Data Sessions"));
    press("push button", "Back");
    press("list item", "Data Volumes");
    QCOMPARE(rowsOf("Data Volumes").last(), QStringLiteral("Reset All Data Sessions"));
    press("list item", "Total Data Transferred");
    QCOMPARE(rowsOf("Data Volume").last(), QStringLiteral("Sum, 0 B"));
    press("push button", "Back");
    QVERIFY(waitFor("list", "Data Volumes"));
    press("push button", "Back");
    QVERIFY(waitFor("list", "Recent Calls"));
}

void TestScreenReader::aQuestionIsAnsweredByItsSoftkey()
{
    press("push button", "Incoming call");
    press("push button", "Answer");
    const auto lasts = [this] {
        const QList<AtSpi::Element> shown = reader->shown();
        return std::any_of(shown.begin(), shown.end(), [](const AtSpi::Element &element) {
            return element.role == "label" && element.name.startsWith("State of the line: Connected ") &&
                   !element.name.contains("00:00:00");
        });
    };
    QVERIFY(QTest::qWaitFor(lasts, patience));
    press("push button", "Hang up");
    press("list item", "Call Times");
    const QStringList rows = rowsOf("Call Times");
    QVERIFY(rows.size() == 6 && rows.at(2).startsWith("Answered Calls, ") && !rows.at(2).endsWith("00:00:00"));
    press("list item", rows.at(2));
    const std::optional<AtSpi::Element> dialog = waitFor("dialog", "Reset Timer");
    QVERIFY(dialog && dialog->has(AtSpi::Modal));
    QCOMPARE(dialog->description, QStringLiteral("Would you like to reset the Answered Calls timer?\n"
                                                 "Left softkey: Yes\nRight softkey: No"));
    QVERIFY(!reader->find("list", "Call Times"));
    press("push button", "Yes");
    QVERIFY(waitFor("list item", "Answered Calls, 00:00:00"));
    QVERIFY(!reader->find("dialog", "Reset Timer"));
    press("push button", "Back");
}

void TestScreenReader::whatTheLineDoesIsTold()
{
    reader->appeared();
    press("push button", "Incoming call");
    QStringList told;
    const auto isTold = [&](const QString &text) { return (told += reader->appeared()).contains(text); };
    QTRY_VERIFY_WITH_TIMEOUT(isTold("notification: State of the line: Ringing, voice call, 5550123"), patience);
}

KAV_TEST_GROUP(TestScreenReader, ApplicationOnItsOwnServer);
#include "tst_screen_reader.moc"
