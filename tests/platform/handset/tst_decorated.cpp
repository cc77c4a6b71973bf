// A handset in front of another: what its hooks see, and what goes on to the handset behind.
#include "handset/DecoratedHandset.h"
#include "handset/EachOperation.h"
#include "support/TestGroup.h"

#include <QtCore/QStringList>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::test;

namespace {

/// Notes what passes its hooks.
class Noting final : public DecoratedHandset<Noting>
{
public:
    Noting(const char *noteName, QStringList &allNotes, std::shared_ptr<Handset> handset = nullptr)
        : DecoratedHandset(std::move(handset))
        , name(QString::fromLatin1(noteName))
        , notes(allNotes)
    {}

    std::optional<int> answer;
    int changes = 0;
    std::function<void()> listener;

    template <typename... Arguments>
    std::optional<int> before(int operation, Arguments &...)
    {
        notes << QStringLiteral("%1 before %2").arg(name, nameOf(operation));
        return answer;
    }
    template <typename... Arguments>
    void after(int operation, int status, const Arguments &...)
    {
        notes << QStringLiteral("%1 after %2: %3").arg(name, nameOf(operation)).arg(status);
    }
    std::optional<int> before(int, const quint8 &pin, const QByteArray &digits, bool &accepted)
    {
        notes << QStringLiteral("%1 before verifyPin(%2, %3)").arg(name).arg(pin).arg(QString::fromLatin1(digits));
        accepted = answer.has_value();
        return answer;
    }
    void after(int, int status, const quint8 &, const QByteArray &, const bool &accepted)
    {
        notes << QStringLiteral("%1 after verifyPin: %2 %3").arg(name).arg(status).arg(accepted);
    }

    void setChangeListener(const std::function<void()> &given) override { listener = given; }
    void changedElsewhere() override { ++changes; }

private:
    static QString nameOf(int operation)
    {
        return QString::fromLatin1(operationNames[static_cast<std::size_t>(operation)]);
    }

    const QString name;
    QStringList &notes;
};

class Front final : public DecoratedHandset<Front>
{
public:
    using DecoratedHandset::DecoratedHandset;
};

} // namespace

class TestDecorated : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { install(nullptr); }

    void anOperationPassesBothHooksAndGoesOnToTheHandsetBehind_data();
    void anOperationPassesBothHooksAndGoesOnToTheHandsetBehind();
    void hooksSeeTheArgumentsAndWhatWasWritten();
    void aRoleIsAbsentWhereItWasTakenAwayOrTheHandsetBehindHasItNot();
    void listenersAndNewsFromElsewhereGoThrough();
};

void TestDecorated::anOperationPassesBothHooksAndGoesOnToTheHandsetBehind_data()
{
    QTest::addColumn<int>("operation");
    for (int i = 0; i < operationIndex("SimSecurity::verifyPin"); ++i) // of which the hooks note more
        QTest::newRow(operationNames[static_cast<std::size_t>(i)]) << i;
}

void TestDecorated::anOperationPassesBothHooksAndGoesOnToTheHandsetBehind()
{
    QFETCH(int, operation);
    const auto ask = askEach[static_cast<std::size_t>(operation)];
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QStringList notes;
    const auto behind = std::make_shared<Noting>("behind", notes);
    const auto front = std::make_shared<Noting>("front", notes, behind);
    install(front);
    QCOMPARE(ask(), int(NotAvailable)); // there is none behind the one behind
    behind->answer = 77;
    notes.clear();
    QCOMPARE(ask(), 77);
    QCOMPARE(notes, (QStringList{"front before " + name, "behind before " + name, "behind after " + name + ": 77",
                                 "front after " + name + ": 77"}));
    for (const int answer : {int(Success), 5}) {
        front->answer = answer;
        notes.clear();
        QCOMPARE(ask(), answer);
        QCOMPARE(notes,
                 (QStringList{"front before " + name, "front after " + name + ": " + QString::number(answer)}));
    }
}

void TestDecorated::hooksSeeTheArgumentsAndWhatWasWritten()
{
    QStringList notes;
    const auto behind = std::make_shared<Noting>("behind", notes);
    behind->answer = Success;
    Noting front("front", notes, behind);
    bool accepted = false;
    QCOMPARE(front.simSecurity()->verifyPin(1, "4711", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(notes, (QStringList{"front before verifyPin(1, 4711)", "behind before verifyPin(1, 4711)",
                                 "behind after verifyPin: 0 1", "front after verifyPin: 0 1"}));
}

void TestDecorated::aRoleIsAbsentWhereItWasTakenAwayOrTheHandsetBehindHasItNot()
{
    const auto behind = std::make_shared<Front>();
    Front front(behind);
    QVERIFY(front.callService() && front.callLog() && front.dataCalls() && front.adviceOfCharge() &&
            front.packetData() && front.simSecurity());
    front.takeAway("CallLog");
    behind->takeAway("PacketData");
    QVERIFY(!front.callLog() && behind->callLog());
    QVERIFY(!front.packetData() && !behind->packetData());
    QVERIFY(front.callService() && front.dataCalls() && front.adviceOfCharge() && front.simSecurity());
}

void TestDecorated::listenersAndNewsFromElsewhereGoThrough()
{
    QStringList notes;
    const auto behind = std::make_shared<Noting>("behind", notes);
    Front front(behind);
    int heard = 0;
    front.setChangeListener([&heard] { ++heard; });
    QVERIFY(behind->listener);
    behind->listener();
    QCOMPARE(heard, 1);
    front.setChangeListener(nullptr);
    QVERIFY(!behind->listener);
    front.changedElsewhere();
    QCOMPARE(behind->changes, 1);
    Front alone; // nobody to tell
    alone.setChangeListener([] {});
    alone.changedElsewhere();
    alone.packetData()->setUpdateListener([] {});
}

KAV_TEST_GROUP(TestDecorated, QCoreApplication);
#include "tst_decorated.moc"
