// Every photograph that the shipped tour names, held against the one that was looked at and kept.
#include "e2e/Picture.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace {

constexpr int patience = 240'000; // milliseconds; a tour takes a few seconds

// Those under a running number are of what is met on the way.
QStringList picturesIn(const QString &directory)
{
    static const QRegularExpression named(QStringLiteral("^[^0-9]"));
    return QDir(directory).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name).filter(named);
}

QString referenceDirectory()
{
    return QStringLiteral(KAV_REFERENCES "/tour");
}

} // namespace

class TestTourPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theTourShowsEveryKeptScreenAndNoOther();
    void aScreenLooksAsItWasKept_data();
    void aScreenLooksAsItWasKept();

private:
    QTemporaryDir photographs;
};

void TestTourPictures::initTestCase()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    QVERIFY(photographs.isValid());
    QProcess host;
    host.start(QStringLiteral(KAV_HOST), {QStringLiteral("--tour"), photographs.path()});
    QVERIFY(host.waitForFinished(patience));
    QVERIFY2(host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0,
             host.readAllStandardError().constData());
    if (!qEnvironmentVariableIsSet("KAV_UPDATE_REFERENCES"))
        return;
    QVERIFY(QDir().mkpath(referenceDirectory()));
    for (const QString &name : picturesIn(referenceDirectory()))
        QVERIFY(QFile::remove(referenceDirectory() + QLatin1Char('/') + name));
    for (const QString &name : picturesIn(photographs.path()))
        QVERIFY(QFile::copy(photographs.filePath(name), referenceDirectory() + QLatin1Char('/') + name));
}

void TestTourPictures::theTourShowsEveryKeptScreenAndNoOther()
{
    QVERIFY(!picturesIn(photographs.path()).isEmpty());
    QCOMPARE(picturesIn(photographs.path()), picturesIn(referenceDirectory()));
}

void TestTourPictures::aScreenLooksAsItWasKept_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : picturesIn(referenceDirectory()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestTourPictures::aScreenLooksAsItWasKept()
{
    QFETCH(QString, name);
    const QImage reference(referenceDirectory() + QLatin1Char('/') + name);
    const QImage seen(photographs.filePath(name));
    QVERIFY2(!reference.isNull() && !seen.isNull(), "a picture cannot be read");
    const PictureDifference apart = difference(seen, reference);
    if (apart.isSmall())
        return;
    const QString kept = QStringLiteral("seen-") + name;
    seen.save(kept);
    QFAIL(qPrintable(QStringLiteral("%1 of the pixels are far off, mean difference %2; what was seen is in %3")
                         .arg(apart.farPixels)
                         .arg(apart.mean)
                         .arg(kept)));
}

KAV_TEST_GROUP(TestTourPictures, QCoreApplication);
#include "tst_tour_pictures.moc"
