// The recent-calls application as a user has it: its real window, real key events, what the display shows.
#include "e2e/OwnServer.h"
#include "e2e/Picture.h"
#include "handset/CallLog.h"
#include "handset/Clock.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtTest/QTest>

#include <csignal>
#include <memory>

using namespace handset;
using simulated::CallDirection;
using simulated::CallKind;

namespace {

constexpr int patience = 60'000; // milliseconds for the application to react, far more than it needs

// Where the display lies in the window, which a server without a window manager puts at its top-left corner.
constexpr QRect displayRect(50, 72, 240, 320);

const QList<simulated::PastCall> history = {
    {CallKind::Voice, CallDirection::Dialed, QStringLiteral("5550101"), 1'000'000, 65'000},
    {CallKind::Voice, CallDirection::Answered, QStringLiteral("5550102"), 2'000'000, 3'725'000},
    {CallKind::Data, CallDirection::Dialed, QStringLiteral("5550103"), 9'000'000, 36'000'000},
};

bool isMakingReferences()
{
    return qEnvironmentVariableIsSet("KAV_UPDATE_REFERENCES");
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void oneWrongDigitIsNotTakenForTheReference();
    void keysLeadFromTheMenuThroughAResetAndOutAgain();
    void theNoticeOfARunningDataCallLiesOverTheDisplayAndGoesWithItsKey();
    void aSignalEndsTheWindowWithItsCallWritten_data();
    void aSignalEndsTheWindowWithItsCallWritten();
    void theQuestionWhetherTheDisplayAnswersEndsNoServer();
    void theWindowSpeaksTheLanguageOfTheLocale_data();
    void theWindowSpeaksTheLanguageOfTheLocale();

private:
    void start(const QString &title = QStringLiteral("Recent Calls"), const QByteArray &locale = {});
    void xdotool(const QStringList &arguments);
    void press(const char *keys);
    QImage photograph() const;
    QImage settledPhotograph();
    void verifyDisplay(const QString &name);
    void leave();
    std::shared_ptr<Handset> reopenState();

    std::unique_ptr<QTemporaryDir> state;
    std::unique_ptr<QProcess> host;
    QImage lastReference;
};

void TestWindow::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    state = std::make_unique<QTemporaryDir>();
    QVERIFY(state->isValid());
    const std::shared_ptr<Handset> handset = reopenState();
    QVERIFY(handset);
    auto *simulation = dynamic_cast<simulated::SimulatedHandset *>(handset.get());
    QVERIFY(simulation);
    QCOMPARE(simulation->addHistory(history), 0);
}

void TestWindow::cleanup()
{
    if (host && host->state() != QProcess::NotRunning) {
        host->kill();
        host->waitForFinished(patience);
    }
    host.reset();
    state.reset();
}

std::shared_ptr<Handset> TestWindow::reopenState()
{
    Settings settings;
    settings.stateDirectory = state->path();
    const Opened opened = open(settings);
    if (!opened.handset || !opened.notice.isEmpty())
        qWarning("%s%s", qPrintable(opened.error), qPrintable(opened.notice));
    return opened.handset;
}

void TestWindow::start(const QString &title, const QByteArray &locale)
{
    host = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!locale.isEmpty()) {
        environment.remove(QStringLiteral("LANGUAGE"));
        environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(locale));
    }
    host->setProcessEnvironment(environment);
    host->setProcessChannelMode(QProcess::ForwardedChannels);
    host->start(QStringLiteral(KAV_HOST), {QStringLiteral("--state"), state->path()});
    QVERIFY2(host->waitForStarted(patience), qPrintable(host->errorString()));
    // Without a window manager the focus is given by hand, to the window once it is there.
    xdotool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
             QStringLiteral("--name"), QStringLiteral("^%1$").arg(title), QStringLiteral("windowmove"),
             QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("windowfocus"), QStringLiteral("--sync")});
}

void TestWindow::xdotool(const QStringList &arguments)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::ForwardedChannels);
    tool.start(QStringLiteral("xdotool"), arguments);
    QVERIFY2(tool.waitForFinished(patience), qPrintable(tool.errorString()));
    QCOMPARE(tool.exitCode(), 0);
}

void TestWindow::press(const char *keys)
{
    xdotool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("30")} +
            QString::fromLatin1(keys).split(QLatin1Char(' ')));
}

QImage TestWindow::photograph() const
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, displayRect.x(), displayRect.y(), displayRect.width(), displayRect.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// For making references: two photographs in a row, a moment apart, that are the same and not the last reference.
QImage TestWindow::settledPhotograph()
{
    QImage settled;
    const bool isQuiet = QTest::qWaitFor(
        [&] {
            const QImage now = photograph();
            const bool isSettled = now == settled && now != lastReference;
            settled = now;
            return isSettled;
        },
        patience);
    lastReference = settled;
    return isQuiet ? settled : QImage();
}

void TestWindow::verifyDisplay(const QString &name)
{
    const QString path = QStringLiteral(KAV_REFERENCES "/%1.png").arg(name);
    if (isMakingReferences()) {
        QVERIFY(settledPhotograph().save(path));
        return;
    }
    const QImage reference(path);
    QVERIFY2(!reference.isNull(), qPrintable(path));
    QImage seen;
    const bool same = QTest::qWaitFor(
        [&] {
            seen = photograph();
            return difference(seen, reference).isSmall();
        },
        patience);
    if (same)
        return;
    const PictureDifference apart = difference(seen, reference);
    const QString kept = QStringLiteral("seen-%1.png").arg(name);
    seen.save(kept);
    QFAIL(qPrintable(QStringLiteral("%1: %2 of the pixels are far off, mean difference %3; what was seen is in %4")
                         .arg(name)
                         .arg(apart.farPixels)
                         .arg(apart.mean)
                         .arg(kept)));
}

void TestWindow::leave()
{
    press("F2");
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitStatus(), QProcess::NormalExit);
    QCOMPARE(host->exitCode(), 0);
}

void TestWindow::oneWrongDigitIsNotTakenForTheReference()
{
    const QImage reference = QImage(QStringLiteral(KAV_REFERENCES "/call-times.png"));
    QVERIFY(difference(reference, reference).isSmall());
    // The last digits of "01:02:05" and "10:00:00", one row below.
    constexpr QRect five(224, 82, 9, 23);
    constexpr QRect zero(224, 106, 9, 23);
    QImage altered = reference.copy();
    for (int y = 0; y < five.height(); ++y) {
        for (int x = 0; x < five.width(); ++x)
            altered.setPixel(five.x() + x, five.y() + y, reference.pixel(zero.x() + x, zero.y() + y));
    }
    QVERIFY(!difference(altered, reference).isSmall());
}

void TestWindow::keysLeadFromTheMenuThroughAResetAndOutAgain()
{
    start();
    verifyDisplay(QStringLiteral("menu"));
    press("Return");
    verifyDisplay(QStringLiteral("call-times"));
    press("Down Return");
    verifyDisplay(QStringLiteral("reset-dialed-calls"));
    press("F1");
    verifyDisplay(QStringLiteral("dialed-calls-reset"));
    press("Escape");
    verifyDisplay(QStringLiteral("menu"));
    leave();

    const std::shared_ptr<Handset> handset = reopenState();
    CallTime time;
    QCOMPARE(handset->callLog()->dialedCallsTime(time), 0);
    QVERIFY(time == CallTime());
    QCOMPARE(handset->callLog()->lifetimeCallsTime(time), 0);
    QVERIFY(time == CallTime::fromSeconds(65 + 3725 + 36000));
    if (isMakingReferences())
        QSKIP("references were written, nothing was compared");
}

void TestWindow::theNoticeOfARunningDataCallLiesOverTheDisplayAndGoesWithItsKey()
{
    start();
    verifyDisplay(QStringLiteral("menu"));
    press("Return");
    verifyDisplay(QStringLiteral("call-times"));
    press("alt+a"); // the panel's "Dial data call"
    press("Down Down Down Return");
    verifyDisplay(QStringLiteral("reset-data-calls"));
    press("F1");
    verifyDisplay(QStringLiteral("refused"));
    press("Return");
    verifyDisplay(QStringLiteral("data-calls-kept"));
    press("F2");
    verifyDisplay(QStringLiteral("menu-while-dialing"));
    leave();

    quint32 seconds = 0;
    QCOMPARE(reopenState()->dataCalls()->totalDuration(seconds), 0);
    QCOMPARE(seconds, 36000U);
    if (isMakingReferences())
        QSKIP("references were written, nothing was compared");
}

void TestWindow::aSignalEndsTheWindowWithItsCallWritten_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestWindow::aSignalEndsTheWindowWithItsCallWritten()
{
    QFETCH(int, signal);
    start();
    verifyDisplay(QStringLiteral("menu"));
    press("alt+a"); // the panel's "Dial data call"
    quint32 before = 0;
    {
        const std::shared_ptr<Handset> beside = reopenState(); // sees the running call
        QVERIFY(beside);
        const auto isCounted = [&] {
            press("alt+o"); // "Other side answers", which the panel takes once it shows the call
            return beside->dataCalls()->totalDuration(before) == Success && before > 36'000;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isCounted(), patience);
    }
    QCOMPARE(::kill(static_cast<pid_t>(host->processId()), signal), 0);
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitStatus(), QProcess::NormalExit);
    QCOMPARE(host->exitCode(), 0);

    const std::shared_ptr<Handset> handset = reopenState();
    QVERIFY(handset);
    quint32 total = 0;
    QCOMPARE(handset->dataCalls()->totalDuration(total), 0);
    QVERIFY(total >= before);
    CallTime last;
    QCOMPARE(handset->callLog()->lastCallTime(last), 0);
    QVERIFY(last == CallTime::fromSeconds(total - 36'000)); // its row
    CallTime lifetime;
    QCOMPARE(handset->callLog()->lifetimeCallsTime(lifetime), 0);
    QVERIFY(lifetime == CallTime::fromSeconds(65 + 3725 + total));
}

void TestWindow::theQuestionWhetherTheDisplayAnswersEndsNoServer()
{
    const XServer server(XServer::LastClientGoes::Ends);
    QVERIFY2(!server.display().isEmpty(), qPrintable(server.error()));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // named, it is not asked
    environment.insert(QStringLiteral("DISPLAY"), server.display());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(KAV_HOST),
                  {QStringLiteral("--state"), QStringLiteral("none"), QStringLiteral("--photo"),
                   state->filePath(QStringLiteral("window.png"))});
    QVERIFY(program.waitForFinished(patience));
    const QByteArray errors = program.readAllStandardError();
    QVERIFY2(program.exitStatus() == QProcess::NormalExit, errors.constData());
    QCOMPARE(program.exitCode(), 0);
}

void TestWindow::theWindowSpeaksTheLanguageOfTheLocale_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("title");
    QTest::newRow("of another country") << QByteArray("de_AT.UTF-8") << "Letzte Anrufe";
    QTest::newRow("one without a catalogue") << QByteArray("eo.UTF-8") << "Recent Calls";
}

void TestWindow::theWindowSpeaksTheLanguageOfTheLocale()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, title);
    start(title, locale);
    leave();
}

KAV_TEST_GROUP(TestWindow, ApplicationOnItsOwnServer);

#include "tst_window.moc"
