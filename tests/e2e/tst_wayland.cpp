// The recent-calls application on a Wayland compositor, where there is no X display.
#include "e2e/Picture.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

namespace {

constexpr int patience = 60'000; // milliseconds, far more than it needs
constexpr auto socketName = "kav-test";

/// Debian's weston without a screen, which paints all the same and lets itself be photographed.
class Compositor
{
public:
    Compositor()
    {
        weston.setWorkingDirectory(runtime.path());
        weston.setProcessEnvironment(environment());
        weston.setProcessChannelMode(QProcess::MergedChannels);
        weston.start(QStringLiteral("weston"),
                     {QStringLiteral("--backend=headless-backend.so"), QStringLiteral("--use-pixman"),
                      QStringLiteral("--debug"), QStringLiteral("--idle-time=0"), QStringLiteral("--width=800"),
                      QStringLiteral("--height=760"),
                      QStringLiteral("--socket=%1").arg(QLatin1StringView(socketName)),
                      QStringLiteral("--log=%1").arg(runtime.filePath(QStringLiteral("log")))});
    }
    ~Compositor()
    {
        weston.terminate();
        if (!weston.waitForFinished(patience))
            weston.kill();
        weston.waitForFinished(patience);
    }
    Q_DISABLE_COPY_MOVE(Compositor)

    bool isReady()
    {
        return QTest::qWaitFor([this] { return QFile::exists(runtime.filePath(QLatin1StringView(socketName))); },
                               patience);
    }
    /// What its clients need to find it, and no X display.
    QProcessEnvironment environment() const
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "QT_QPA_PLATFORM"})
            variables.remove(QLatin1StringView(name));
        variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
        variables.insert(QStringLiteral("WAYLAND_DISPLAY"), QLatin1StringView(socketName));
        return variables;
    }
    /// All that the compositor shows now; null when it lets nobody photograph it.
    QImage photograph() const
    {
        const QTemporaryDir folder;
        QProcess camera;
        camera.setProcessEnvironment(environment());
        camera.setWorkingDirectory(folder.path());
        camera.start(QStringLiteral("weston-screenshooter"), QStringList());
        camera.waitForFinished(patience);
        const QStringList files = QDir(folder.path()).entryList({QStringLiteral("*.png")}, QDir::Files);
        return files.isEmpty() ? QImage()
                               : QImage(folder.filePath(files.first())).convertToFormat(QImage::Format_RGB32);
    }

    QTemporaryDir runtime; // of mode 0700, as the compositor wants it
    QProcess weston;
};

// The compositor puts a window where it likes: the place is looked for by the picture's first row.
bool shows(const QImage &all, const QImage &picture)
{
    for (int y = 0; y + picture.height() <= all.height(); ++y) {
        for (int x = 0; x + picture.width() <= all.width(); ++x) {
            if (all.pixel(x, y) == picture.pixel(0, 0) &&
                difference(all.copy(x, y, picture.width(), 1), picture.copy(0, 0, picture.width(), 1)).isSmall() &&
                difference(all.copy(QRect(QPoint(x, y), picture.size())), picture).isSmall())
                return true;
        }
    }
    return false;
}

} // namespace

class TestWayland : public QObject
{
    Q_OBJECT

private slots:
    void theWindowIsShownWhereThereIsNoXDisplay();
    void aCompositorThatIsNotThereIsASentence();
};

void TestWayland::theWindowIsShownWhereThereIsNoXDisplay()
{
    const QImage menu = QImage(QStringLiteral(KAV_REFERENCES "/menu.png")).convertToFormat(QImage::Format_RGB32);
    QVERIFY(!menu.isNull());
    Compositor compositor;
    QVERIFY2(compositor.isReady(), compositor.weston.readAll().constData());
    QVERIFY2(!shows(compositor.photograph(), menu), "it is there before the program is");
    const QTemporaryDir state;
    QProcess host;
    host.setProcessEnvironment(compositor.environment());
    host.setProcessChannelMode(QProcess::ForwardedChannels);
    host.start(QStringLiteral(KAV_HOST), {QStringLiteral("--state"), state.path()});
    QVERIFY2(QTest::qWaitFor([&] { return shows(compositor.photograph(), menu); }, patience),
             qPrintable(host.errorString()));
    host.terminate();
    QVERIFY(host.waitForFinished(patience));
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
}

void TestWayland::aCompositorThatIsNotThereIsASentence()
{
    const QTemporaryDir runtime;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1StringView(name));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("nobody"));
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QStringLiteral(KAV_HOST), {QStringLiteral("--state"), runtime.path()});
    QVERIFY(host.waitForFinished(patience));
    QCOMPARE(host.exitCode(), 9);
    QCOMPARE(host.readAllStandardError(),
             QByteArrayLiteral(
                 "kavrecentcalls: The platform \"wayland\" of Qt cannot be used: it is not installed, or has "
                 "nothing to show windows on.\n"));
}

KAV_TEST_GROUP(TestWayland, QCoreApplication);
#include "tst_wayland.moc"
