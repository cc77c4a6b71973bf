// Directories that cannot be used, and directories that somebody else uses.
#include "handset/HandsetTestKit.h"
#include "handset/OtherProcess.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <memory>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace handset;
using namespace handset::test;

namespace {

/// Somebody for whom the permissions of files count, which they do not for root.
uid_t ordinaryUser()
{
    constexpr uid_t nobody = 65534;
    return ::geteuid() == 0 ? nobody : ::geteuid();
}

// The directory and all in it, which others may then reach.
bool giveAll(const StateDir &state, uid_t user)
{
    const auto give = [user](const QString &path) {
        return ::chown(QFile::encodeName(path).constData(), user, static_cast<gid_t>(-1)) == 0;
    };
    const QStringList names = QDir(state.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    return ::chmod(QFile::encodeName(state.sibling(QStringLiteral("."))).constData(), 0711) == 0 &&
           give(state.path()) &&
           std::all_of(names.begin(), names.end(), [&](const QString &name) { return give(state.file(name)); });
}

} // namespace

class TestStateDirectory : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aDirectoryThatCannotBeUsedIsOneSentence_data();
    void aDirectoryThatCannotBeUsedIsOneSentence();
    void aDirectoryThatOthersMayWriteIsTold_data();
    void aDirectoryThatOthersMayWriteIsTold();
    void aDirectoryThatOthersMayReplaceIsTold_data();
    void aDirectoryThatOthersMayReplaceIsTold();
    void aDirectoryOfAnotherUserIsTold();
    void aLeftoverWithWrongRightsIsMendedOrNamed_data();
    void aLeftoverWithWrongRightsIsMendedOrNamed();
    void whatIsNoFileBesideTheLogIsNamedAndNotWaitedFor_data();
    void whatIsNoFileBesideTheLogIsNamedAndNotWaitedFor();
    void permissionsThatAreMissingAreTold_data();
    void permissionsThatAreMissingAreTold();
    void aFileOfTheTelephoneWithWrongRightsIsMended_data();
    void aFileOfTheTelephoneWithWrongRightsIsMended();
    void aFileOfAnotherUserIsNamedAndStaysAsItIs_data();
    void aFileOfAnotherUserIsNamedAndStaysAsItIs();
    void aLockThatIsSomethingElseIsAnError_data();
    void aLockThatIsSomethingElseIsAnError();
    void aRecordersLockThatIsHeldAloneIsNotWaitedForForEver();
    void aLinkToADirectoryIsFollowed();
    void aSecondProcessMovesNothingAside();
    void aSecondHandsetOfThisProcessIsRefusedToo();
    void aDirectoryThatWasRenamedWhileInUseCanBeOpenedAgain();
    void removingTheLockFilesMakesNoSecondRecorder_data();
    void removingTheLockFilesMakesNoSecondRecorder();
};

void TestStateDirectory::aDirectoryThatCannotBeUsedIsOneSentence_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a file in its place") << QStringLiteral("file") << QStringLiteral("Not a directory");
    QTest::newRow("a file on the way") << QStringLiteral("file/below/it") << QStringLiteral("Not a directory");
    QTest::newRow("a link to nowhere") << QStringLiteral("dangling") << QStringLiteral("Not a directory");
    QTest::newRow("a link to itself") << QStringLiteral("loop/state") << QStringLiteral("Not a directory");
    QTest::newRow("a place where nothing can be made")
        << QStringLiteral("/proc/kav") << QStringLiteral("No such file");
    QTest::newRow("a directory in which nobody can make a file")
        << QStringLiteral("/proc/1") << QStringLiteral("");
    QTest::newRow("a name that is too long")
        << QString(300, QLatin1Char('n')) << QStringLiteral("File name too long");
    QTest::newRow("a name with a zero character")
        << QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b") << QStringLiteral("Invalid argument");
    QTest::newRow("a name whose bytes are no UTF-8")
        << QString::fromUtf8("stat\xe9") << QStringLiteral("its name is not UTF-8");
    QTest::newRow("a name with half a character")
        << QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b") << QStringLiteral("its name is not UTF-8");
}

void TestStateDirectory::aDirectoryThatCannotBeUsedIsOneSentence()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const StateDir state;
    QVERIFY(writeFile(state.sibling(QStringLiteral("file")), "precious"));
    QCOMPARE(::symlink("nowhere", QFile::encodeName(state.sibling(QStringLiteral("dangling"))).constData()), 0);
    QCOMPARE(::symlink("loop", QFile::encodeName(state.sibling(QStringLiteral("loop"))).constData()), 0);

    const Phone phone(path.startsWith(QLatin1Char('/')) ? path : state.sibling(path));
    QVERIFY(!phone);
    QVERIFY(!phone.opened.handset);
    const QRegularExpression sentence(
        QStringLiteral("^The state directory \".+\" cannot be used: .*%1.*\\.$").arg(reason));
    QVERIFY2(sentence.match(phone.opened.error).hasMatch(), qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.error.count(QLatin1Char('\n')), 0);
    QVERIFY(phone.opened.notice.isEmpty());
    QCOMPARE(readFile(state.sibling(QStringLiteral("file"))), QByteArray("precious"));
    const QStringList beside =
        QDir(state.sibling(QStringLiteral("."))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(beside, QStringList());
}

void TestStateDirectory::aDirectoryThatOthersMayWriteIsTold_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("the user alone") << 0700 << false;
    QTest::newRow("others may look") << 0755 << false;
    QTest::newRow("the group may write") << 0770 << true;
    QTest::newRow("everybody may write") << 0777 << true;
    QTest::newRow("everybody may write, but remove only what is theirs") << 01777 << true;
}

void TestStateDirectory::aDirectoryThatOthersMayWriteIsTold()
{
    QFETCH(int, mode);
    QFETCH(bool, isTold);
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QCOMPARE(::chmod(QFile::encodeName(state.path()).constData(), static_cast<mode_t>(mode)), 0);
    for (int start = 0; start < 2; ++start) { // and at every start
        const Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        const QString notice = QStringLiteral("The state directory \"%1\" may be written by other users, who can "
                                              "change what is kept in it.");
        QCOMPARE(phone.opened.notice, isTold ? notice.arg(state.path()) : QString());
    }
}

void TestStateDirectory::aDirectoryThatOthersMayReplaceIsTold_data()
{
    QTest::addColumn<int>("modeAbove");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("the user alone") << 0700 << false;
    QTest::newRow("others may look") << 0755 << false;
    QTest::newRow("the group may write") << 0770 << true;
    QTest::newRow("everybody may write") << 0777 << true;
    QTest::newRow("everybody may write, but rename only what is theirs") << 01777 << false;
}

void TestStateDirectory::aDirectoryThatOthersMayReplaceIsTold()
{
    QFETCH(int, modeAbove);
    QFETCH(bool, isTold);
    const StateDir state;
    const QString above = state.sibling(QStringLiteral("above"));
    const QString path = above + QStringLiteral("/state");
    QVERIFY(QDir().mkpath(above));
    QCOMPARE(::mkdir(QFile::encodeName(path).constData(), 0700), 0);
    QCOMPARE(::chmod(QFile::encodeName(above).constData(), static_cast<mode_t>(modeAbove)), 0);
    const Phone phone(path);
    QVERIFY2(phone, qPrintable(phone.opened.error));
    const QString notice =
        QStringLiteral("The state directory \"%1\" lies in one that may be written by other users, "
                       "who can put another in its place.");
    QCOMPARE(phone.opened.notice, isTold ? notice.arg(path) : QString());
}

void TestStateDirectory::aDirectoryOfAnotherUserIsTold()
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    if (::chown(QFile::encodeName(state.path()).constData(), 1234, static_cast<gid_t>(-1)) != 0)
        QSKIP("only root may give a directory to another user");
    const Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.notice,
             QStringLiteral("The state directory \"%1\" belongs to another user, who can change "
                            "what is kept in it.")
                 .arg(state.path()));
}

void TestStateDirectory::aLeftoverWithWrongRightsIsMendedOrNamed_data()
{
    QTest::addColumn<QString>("leftover");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isOurs");
    for (const char *suffix : {"-wal", "-shm"}) {
        const QString leftover = QStringLiteral("calllog.db") + QLatin1String(suffix);
        QTest::addRow("its %s with no rights at all", suffix) << leftover << 0 << true;
        QTest::addRow("its %s that cannot be written", suffix) << leftover << 0400 << true;
        QTest::addRow("its %s of another user", suffix) << leftover << 0600 << false;
    }
}

void TestStateDirectory::aLeftoverWithWrongRightsIsMendedOrNamed()
{
    QFETCH(QString, leftover);
    QFETCH(int, mode);
    QFETCH(bool, isOurs);
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dial());
        QVERIFY(copyState(state.path(), state.sibling(QStringLiteral("crashed"))));
        QVERIFY(QFile::copy(state.file(QStringLiteral("calllog.db-shm")),
                            state.sibling(QStringLiteral("crashed/calllog.db-shm"))));
    }
    const QString crashed = state.sibling(QStringLiteral("crashed"));
    const QByteArray onTheWay = QFile::encodeName(state.sibling(QStringLiteral(".")));
    QCOMPARE(::chmod(onTheWay.constData(), 0711), 0);
    const auto give = [&](const QString &name, uid_t user) {
        const QByteArray path = QFile::encodeName(crashed + QLatin1Char('/') + name);
        return ::chown(path.constData(), user, static_cast<gid_t>(-1)) == 0;
    };
    for (const char *name : {".", "calllog.db", "calllog.db-wal", "calllog.db-shm"})
        if (!give(QLatin1String(name), ordinaryUser()))
            QSKIP("root may not give a file to another user here");
    if (!isOurs && !give(leftover, ordinaryUser() + 1))
        QSKIP("only root may give a file to another user");
    const QString victim = crashed + QLatin1Char('/') + leftover;
    QCOMPARE(::chmod(QFile::encodeName(victim).constData(), static_cast<mode_t>(mode)), 0);

    const QByteArray answer = OtherProcess(crashed, {QString::number(ordinaryUser())}).firstLine();
    if (answer == "not permitted")
        QSKIP("root may not become another user here");
    const QString refusal = QStringLiteral("error The call log \"%1/calllog.db\" cannot be used: \"%2\" cannot be "
                                           "read and written (Permission denied).");
    QCOMPARE(answer, isOurs ? QByteArray("holding") : refusal.arg(crashed, victim).toUtf8());
    QCOMPARE(Phone(crashed).opened.error, QString());
}

void TestStateDirectory::whatIsNoFileBesideTheLogIsNamedAndNotWaitedFor_data()
{
    QTest::addColumn<QString>("leftover");
    QTest::addColumn<int>("kind");
    for (const char *suffix : {"-wal", "-shm", "-journal"}) {
        const QString leftover = QStringLiteral("calllog.db") + QLatin1String(suffix);
        QTest::addRow("a pipe as its %s", suffix) << leftover << S_IFIFO;
        QTest::addRow("a directory as its %s", suffix) << leftover << S_IFDIR;
        QTest::addRow("a socket as its %s", suffix) << leftover << S_IFSOCK;
    }
}

// SQLite would open a pipe and wait for somebody to write into it.
void TestStateDirectory::whatIsNoFileBesideTheLogIsNamedAndNotWaitedFor()
{
    QFETCH(QString, leftover);
    QFETCH(int, kind);
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    const QByteArray before = readFile(state.database());
    const QByteArray path = QFile::encodeName(state.file(leftover));
    QCOMPARE(kind == S_IFDIR ? ::mkdir(path.constData(), 0700)
                             : ::mknod(path.constData(), static_cast<mode_t>(kind) | 0600, 0),
             0);
    QCOMPARE(Phone(state.path()).opened.error,
             QStringLiteral("The call log \"%1\" cannot be used: \"%2\" is no regular file.")
                 .arg(state.database(), state.file(leftover)));
    QCOMPARE(readFile(state.database()), before);
    QCOMPARE(::remove(path.constData()), 0);
    const Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(phone.figures().lifetime, quint64{1});
}

void TestStateDirectory::permissionsThatAreMissingAreTold_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("below");
    QTest::addColumn<bool>("isUsable");
    QTest::newRow("a directory with all that is needed") << 0700 << QString() << true;
    QTest::newRow("a directory that cannot be written") << 0500 << QString() << false;
    QTest::newRow("a directory that cannot be entered") << 0600 << QString() << false;
    QTest::newRow("a directory that cannot be made") << 0500 << QStringLiteral("/below/it") << false;
}

void TestStateDirectory::permissionsThatAreMissingAreTold()
{
    QFETCH(int, mode);
    QFETCH(QString, below);
    QFETCH(bool, isUsable);
    const StateDir state;
    const QByteArray directory = QFile::encodeName(state.path());
    const QByteArray onTheWay = QFile::encodeName(state.sibling(QStringLiteral(".")));
    QCOMPARE(::mkdir(directory.constData(), 0700), 0);
    QCOMPARE(::chmod(onTheWay.constData(), 0711), 0);
    if (::chown(directory.constData(), ordinaryUser(), static_cast<gid_t>(-1)) != 0)
        QSKIP("root may not give a directory to another user here");
    QCOMPARE(::chmod(directory.constData(), static_cast<mode_t>(mode)), 0);
    const QString path = state.path() + below;
    const QByteArray answer = OtherProcess(path, {QString::number(ordinaryUser())}).firstLine();
    if (answer == "not permitted")
        QSKIP("root may not become another user here");
    // The directory that could not be made is named, not the one on the way; and what could not be made in it.
    const QByteArray file = below.isEmpty() ? "\"" + path.toUtf8() + "/lock\": " : QByteArray();
    const QByteArray refusal =
        "error The state directory \"" + path.toUtf8() + "\" cannot be used: " + file + "Permission denied.";
    QCOMPARE(answer, isUsable ? QByteArray("holding") : refusal);
    QCOMPARE(state.names().isEmpty(), !isUsable);
}

void TestStateDirectory::aFileOfTheTelephoneWithWrongRightsIsMended_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("mode");
    for (const char *file : {"calllog.db", "lock", "recorder"}) {
        QTest::addRow("%s with no rights at all", file) << file << 0;
        QTest::addRow("%s that cannot be written", file) << file << 0400;
        QTest::addRow("%s that cannot be read", file) << file << 0200;
    }
}

void TestStateDirectory::aFileOfTheTelephoneWithWrongRightsIsMended()
{
    QFETCH(QString, file);
    QFETCH(int, mode);
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    if (!giveAll(state, ordinaryUser()))
        QSKIP("root may not give a file to another user here");
    const QByteArray victim = QFile::encodeName(state.file(file));
    QCOMPARE(::chmod(victim.constData(), static_cast<mode_t>(mode)), 0);
    const QByteArray answer = OtherProcess(state.path(), {QString::number(ordinaryUser())}).firstLine();
    if (answer == "not permitted")
        QSKIP("root may not become another user here");
    QCOMPARE(answer, "holding");
    QCOMPARE(QFile::permissions(state.file(file)) & ~(QFile::ReadUser | QFile::WriteUser),
             QFile::ReadOwner | QFile::WriteOwner);
    QCOMPARE(Phone(state.path()).figures().lifetime, quint64{1});
}

void TestStateDirectory::aFileOfAnotherUserIsNamedAndStaysAsItIs_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("the call log")
        << "calllog.db"
        << "The call log \"%1/calllog.db\" cannot be used: it cannot be read and written "
           "(Permission denied).";
    for (const char *lock : {"lock", "recorder"})
        QTest::newRow(lock) << lock
                            << QStringLiteral(
                                   "The state directory \"%1\" cannot be used: \"%1/%2\": Permission denied.")
                                   .arg(QStringLiteral("%1"), QLatin1String(lock));
}

void TestStateDirectory::aFileOfAnotherUserIsNamedAndStaysAsItIs()
{
    QFETCH(QString, file);
    QFETCH(QString, refusal);
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    const QByteArray victim = QFile::encodeName(state.file(file));
    if (!giveAll(state, ordinaryUser()) ||
        ::chown(victim.constData(), ordinaryUser() + 1, static_cast<gid_t>(-1)) != 0)
        QSKIP("root may not give a file to another user here");
    QCOMPARE(::chmod(victim.constData(), 0644), 0);
    const QByteArray answer = OtherProcess(state.path(), {QString::number(ordinaryUser())}).firstLine();
    if (answer == "not permitted")
        QSKIP("root may not become another user here");
    QCOMPARE(QString::fromUtf8(answer),
             QStringLiteral("error ") + refusal.replace(QStringLiteral("%1"), state.path()));
    struct stat status = {};
    QCOMPARE(::stat(victim.constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777, mode_t{0644});
}

void TestStateDirectory::aLockThatIsSomethingElseIsAnError_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    for (const char *name : {"lock", "recorder"}) {
        QTest::addRow("a directory named %s", name) << QString::fromLatin1(name) << int(S_IFDIR);
        QTest::addRow("a link named %s", name) << QString::fromLatin1(name) << int(S_IFLNK);
    }
}

void TestStateDirectory::aLockThatIsSomethingElseIsAnError()
{
    QFETCH(QString, name);
    QFETCH(int, kind);
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    QVERIFY(QFile::remove(state.file(name)));
    const QByteArray lock = QFile::encodeName(state.file(name));
    QCOMPARE(kind == S_IFDIR ? ::mkdir(lock.constData(), 0700) : ::symlink("elsewhere", lock.constData()), 0);
    const Phone phone(state.path());
    QVERIFY(!phone);
    QCOMPARE(phone.opened.error,
             QStringLiteral("The state directory \"%1\" cannot be used: \"%2\": %3.")
                 .arg(state.path(), state.file(name),
                      QString::fromLocal8Bit(std::strerror(kind == S_IFDIR ? EISDIR : ELOOP))));
    QVERIFY(!QFile::exists(state.file(QStringLiteral("elsewhere"))));
}

// By who holds no other lock of the directory, as the log has to be made.
void TestStateDirectory::aRecordersLockThatIsHeldAloneIsNotWaitedForForEver()
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QFile lock(state.file(QStringLiteral("recorder")));
    QVERIFY(lock.open(QIODevice::WriteOnly));
    QCOMPARE(::flock(lock.handle(), LOCK_EX), 0);
    {
        const Phone phone(state.path(), nullptr, {}, hardlyAny);
        QVERIFY(!phone);
        QVERIFY2(phone.opened.error.contains(QStringLiteral("another process has it open")),
                 qPrintable(phone.opened.error));
    }
    lock.close();
    QVERIFY(Phone(state.path()).dialed(second));
}

void TestStateDirectory::aLinkToADirectoryIsFollowed()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(4 * second));
    const QString link = state.sibling(QStringLiteral("link"));
    QVERIFY(QFile::link(state.path(), link));
    QCOMPARE(Phone(link).figures().dialed, quint64{4});
    const Phone phone(link);
    QVERIFY(!Phone(state.path())); // the same directory, however it is named
}

void TestStateDirectory::aSecondProcessMovesNothingAside()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(4 * second));
    OtherProcess holder(state.path());
    QCOMPARE(holder.firstLine(), QByteArray("holding"));
    // Even a database that is none now.
    const QStringList before = state.names();
    QVERIFY(writeFile(state.sibling(QStringLiteral("garbage")), QByteArray(5000, 'g')));
    QVERIFY(QFile::remove(state.database()));
    QVERIFY(QFile::copy(state.sibling(QStringLiteral("garbage")), state.database()));
    const Phone phone(state.path(), nullptr, {}, hardlyAny);
    QVERIFY(!phone);
    QVERIFY2(phone.opened.error.contains(QStringLiteral("it is in use by handset_other_p (process ")),
             qPrintable(phone.opened.error));
    QCOMPARE(state.names(), before);
    QCOMPARE(readFile(state.database()), QByteArray(5000, 'g'));
}

void TestStateDirectory::aSecondHandsetOfThisProcessIsRefusedToo()
{
    const StateDir state;
    const Phone phone(state.path());
    QVERIFY(phone);
    const Phone another(state.path() + QStringLiteral("/../state/"));
    QVERIFY(!another);
    QCOMPARE(another.opened.error,
             QStringLiteral("The state directory \"%1\" is in use by another telephone.").arg(state.path()));
}

void TestStateDirectory::aDirectoryThatWasRenamedWhileInUseCanBeOpenedAgain()
{
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dialed(4 * second));
    const QString renamed = state.sibling(QStringLiteral("renamed"));
    QVERIFY(QDir().rename(state.path(), renamed));
    phone.close();
    const Phone again(renamed);
    QVERIFY2(again, qPrintable(again.opened.error));
    QCOMPARE(again.figures().dialed, quint64{4});
}

void TestStateDirectory::removingTheLockFilesMakesNoSecondRecorder_data()
{
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<bool>("isReaderThere");
    const QStringList lock{QStringLiteral("lock")};
    QTest::newRow("that of the directory") << lock << false;
    QTest::newRow("that of the directory, while another process only reads") << lock << true;
    QTest::newRow("both") << lock + QStringList{QStringLiteral("recorder")} << false;
}

void TestStateDirectory::removingTheLockFilesMakesNoSecondRecorder()
{
    QFETCH(QStringList, removed);
    QFETCH(bool, isReaderThere);
    const StateDir state;
    Phone phone(state.path());
    QVERIFY(phone.dial());
    std::unique_ptr<OtherProcess> reader;
    if (isReaderThere) {
        reader = std::make_unique<OtherProcess>(state.path());
        QCOMPARE(reader->firstLine(), QByteArray("holding"));
        QCOMPARE(reader->ask("recording"), QByteArray("no"));
    }
    for (const QString &lock : removed)
        QVERIFY(QFile::remove(state.file(lock)));
    OtherProcess holder(state.path());
    QCOMPARE(holder.firstLine(), QByteArray("holding"));
    QCOMPARE(holder.ask("recording"), QByteArray("no"));
    // Nor does it take the directory for itself.
    QCOMPARE(phone->hangUp(), int(Success));
    QVERIFY(QFile::remove(state.database()));
    QVERIFY(OtherProcess(state.path()).firstLine().contains("in use by"));
}

KAV_TEST_GROUP(TestStateDirectory, QCoreApplication);
#include "tst_state_directory.moc"
