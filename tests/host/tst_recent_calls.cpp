// The panel's page of the kept calls: what it lists, reads and deletes.
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/Clock.h"
#include "handset/DecoratedHandset.h"
#include "handset/KeptCalls.h"
#include "handset/Status.h"
#include "host/PhoneWindow.h"
#include "host/panel/CallsModel.h"
#include "host/panel/Panel.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QDateTime>
#include <QtGui/QGuiApplication>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeView>

using namespace host;
using handset::CallDirection;
using handset::CallKind;
using handset::KeptCall;
using handset::PastCall;
using handset::simulated::SimulatedHandset;

namespace {

constexpr qint64 million = 1'000'000;

/// Keeps calls 1 to `last`, and counts how many of them are read.
class EndlessCalls final : public handset::KeptCalls
{
public:
    int newest(qint64 before, int most, QList<KeptCall> &calls) override
    {
        if (status != handset::Success)
            return status;
        calls.clear();
        for (qint64 id = std::min(before - 1, last); id > 0 && calls.size() < most; --id, ++rowsRead)
            calls.append({id, {CallKind::Voice, CallDirection::Dialed, QString::number(id), 0, id * 1000, id}});
        return handset::Success;
    }
    int count(qint64 first, qint64 before, qint64 &count) override
    {
        count = before - first;
        return status;
    }
    int remove(qint64) override { return status; }
    int removeBefore(qint64, qint64 &) override { return status; }

    qint64 last = million;
    qint64 rowsRead = 0;
    int status = handset::Success;
};

class EndlessHandset final : public QObject, public handset::DecoratedHandset<EndlessHandset>
{
    Q_OBJECT

public:
    handset::KeptCalls *keptCalls() override { return &calls; }

    EndlessCalls calls;

signals:
    void changed();
};

PastCall pastCall(CallDirection direction, const char *number, qint64 ms)
{
    return {CallKind::Voice, direction, QString::fromLatin1(number),
            QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)).toMSecsSinceEpoch(), ms};
}

} // namespace

class TestRecentCalls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theCallsAreListedNewestFirstWithAllThatIsKnownOfThem();
    void costsAreShownInTheCurrencyWhereThatIsChosen();
    void aNumberIsReadFromLeftToRightAmongTextThatIsNot();
    void aCallWithoutAnAnswerIsToldFromOneWith_data();
    void aCallWithoutAnAnswerIsToldFromOneWith();
    void aRunningCallIsListedUpToNowAndCannotBeDeleted();
    void theChosenCallIsDeletedAndTheTotalsStay();
    void theDeleteKeyDeletesTheChosenCall();
    void deletingAllAsksAndTheTotalsStay();
    void deletingAllCanBeGivenUp();
    void whatIsDeletedElsewhereGoesAndTheChoiceStays();
    void aMillionCallsOpenWithTheFirstPagesAlone();
    void theNextPageIsReadWhenTheLastRowIsSeen();
    void aDeletionBehindTheFirstPageIsSeen();
    void manyNewCallsComeInFrontOfTheOldOnes();
    void aLogThatCannotBeReadIsTold();
    void aDeletionThatFailsIsTold();
    void aTelephoneThatKeepsNoCallsHasNothingToDelete();

private:
    void open(const std::shared_ptr<handset::Handset> &behind);
    std::shared_ptr<EndlessHandset> openEndless();
    void addHistory(int calls) const;
    void choose(int row) const { table->setCurrentIndex(table->model()->index(row, 0)); }
    QPushButton *button(const char *text) const;
    QMessageBox *question() const { return window->findChild<QMessageBox *>(); }
    void answer(const char *text) const;
    QString failure() const { return window->findChild<QLabel *>("recent calls failure")->text(); }
    QString text(int row, int column, int role = Qt::DisplayRole) const
    {
        return table->model()->index(row, column).data(role).toString();
    }
    QStringList numbers() const;
    int rows() const { return table->model()->rowCount(); }
    QString dialedTime() const;

    ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
    QTreeView *table = nullptr;
};

void TestRecentCalls::initTestCase()
{
    const QString problem = library.load(QStringLiteral("libkavcallmeter.so.1"));
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestRecentCalls::init()
{
    clock = std::make_shared<handset::ManualClock>(1'800'000'000'000);
    const handset::Opened opened = handset::open({"simulated", {}, clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    handset = dynamic_cast<SimulatedHandset *>(opened.handset.get());
    open(opened.handset);
}

void TestRecentCalls::cleanup()
{
    window.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    handset::install(nullptr);
    owner.reset();
}

void TestRecentCalls::open(const std::shared_ptr<handset::Handset> &behind)
{
    window.reset();
    owner = behind;
    handset::install(owner);
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{owner, {}, {}});
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 60'000));
    QVERIFY(window->complete());
    const auto *const page = std::find(pageNames.begin(), pageNames.end(), QLatin1StringView("recent"));
    window->choosePage(static_cast<int>(page - pageNames.begin()));
    table = window->findChild<QTreeView *>("recent calls");
    QVERIFY(table);
}

std::shared_ptr<EndlessHandset> TestRecentCalls::openEndless()
{
    const auto endless = std::make_shared<EndlessHandset>();
    open(endless);
    return endless;
}

void TestRecentCalls::addHistory(int calls) const
{
    QList<PastCall> history;
    for (int number = 1; number <= calls; ++number)
        history.append(pastCall(CallDirection::Dialed, QByteArray::number(number).constData(), 1000));
    QCOMPARE(handset->addHistory(history), 0);
}

QPushButton *TestRecentCalls::button(const char *text) const
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->isVisible() && candidate->text().remove(u'&') == QLatin1StringView(text))
            return candidate;
    }
    qFatal("there is no button \"%s\"", text);
}

void TestRecentCalls::answer(const char *text) const
{
    QVERIFY(question());
    QTest::mouseClick(button(text), Qt::LeftButton);
    QTRY_VERIFY(!question());
}

QStringList TestRecentCalls::numbers() const
{
    QStringList all;
    for (int row = 0; row < rows(); ++row)
        all << text(row, CallsModel::Call).section(u'\n', 0, 0);
    return all;
}

QString TestRecentCalls::dialedTime() const
{
    handset::CallTime time;
    return handset->callLog()->dialedCallsTime(time) == 0
               ? clockText(qint64{time.hours} * 3600 + qint64{time.minutes} * 60 + time.seconds)
               : QString();
}

// --- what is listed

void TestRecentCalls::theCallsAreListedNewestFirstWithAllThatIsKnownOfThem()
{
    QCOMPARE(rows(), 0);
    QCOMPARE(handset->addHistory({pastCall(CallDirection::Dialed, "5550101", 65'000),
                                  pastCall(CallDirection::Answered, "", 3'600'000)}),
             0);
    QCOMPARE(numbers(), (QStringList{"number withheld", "5550101"}));
    QCOMPARE(text(1, CallsModel::Direction, Qt::AccessibleTextRole), "Dialed");
    QCOMPARE(text(1, CallsModel::Call), "5550101\n2026-03-04 05:06:07");
    QCOMPARE(text(1, CallsModel::Amount), "00:01:05\n6.00 units");
    QCOMPARE(text(0, CallsModel::Direction, Qt::AccessibleTextRole), "Answered");
    QCOMPARE(text(0, CallsModel::Amount, Qt::AccessibleTextRole), "01:00:00, 0.00 units");
    QVERIFY(text(0, CallsModel::Direction) != text(1, CallsModel::Direction));
}

void TestRecentCalls::costsAreShownInTheCurrencyWhereThatIsChosen()
{
    QCOMPARE(handset->addHistory({pastCall(CallDirection::Dialed, "5550101", 65'000)}), 0);
    QCOMPARE(handset->adviceOfCharge()->setPriceAndCurrency("0.23", "EUR"), 0);
    QCOMPARE(text(0, CallsModel::Amount), "00:01:05\n6.00 units");
    QCOMPARE(handset->adviceOfCharge()->setChargeType(handset::AdviceOfCharge::InCurrency), 0);
    QCOMPARE(text(0, CallsModel::Amount), "00:01:05\n1.38 EUR");
}

void TestRecentCalls::aNumberIsReadFromLeftToRightAmongTextThatIsNot()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(handset->addHistory({pastCall(CallDirection::Dialed, "+4930123456", 65'000)}), 0);
    const QString isolate(QChar(0x2066));
    const QString popped(QChar(0x2069));
    QCOMPARE(text(0, CallsModel::Call),
             isolate + "+4930123456" + popped + '\n' + isolate + "2026-03-04 05:06:07" + popped);
    QCOMPARE(handset->dial("*#99", CallKind::Voice), 0);
    const auto *const state = window->findChild<QLabel *>("line state");
    QVERIFY(state);
    QTRY_VERIFY2(state->text().contains(isolate + "*#99" + popped), qPrintable(state->text()));
    QCOMPARE(window->findChild<QLineEdit *>("number")->layoutDirection(), Qt::LeftToRight);
}

void TestRecentCalls::aCallWithoutAnAnswerIsToldFromOneWith_data()
{
    QTest::addColumn<CallKind>("kind");
    QTest::addColumn<CallDirection>("direction");
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<QString>("told");
    QTest::newRow("an incoming one") << CallKind::Voice << CallDirection::Answered << qint64{0} << "Missed";
    QTest::newRow("one that was dialed")
        << CallKind::Voice << CallDirection::Dialed << qint64{0} << "Dialed, not answered";
    QTest::newRow("a data call") << CallKind::Data << CallDirection::Dialed << qint64{1000} << "Data call";
}

void TestRecentCalls::aCallWithoutAnAnswerIsToldFromOneWith()
{
    QFETCH(const CallKind, kind);
    QFETCH(const CallDirection, direction);
    QFETCH(const qint64, ms);
    if (direction == CallDirection::Answered)
        QCOMPARE(handset->ring("5550102"), 0);
    else
        QCOMPARE(handset->dial("5550102", kind), 0);
    if (ms > 0)
        QCOMPARE(handset->remoteAnswer(), 0);
    clock->advance(ms);
    QCOMPARE(handset->hangUp(), 0);
    QTEST(text(0, CallsModel::Direction, Qt::AccessibleTextRole), "told");
    QTEST(text(0, CallsModel::Direction, Qt::ToolTipRole), "told");
}

void TestRecentCalls::aRunningCallIsListedUpToNowAndCannotBeDeleted()
{
    QCOMPARE(handset->dial("5550103", CallKind::Voice), 0);
    QCOMPARE(rows(), 0);
    QCOMPARE(handset->remoteAnswer(), 0);
    QCOMPARE(numbers(), QStringList{"5550103"});
    clock->advance(65'000);
    emit handset->changed();
    QCOMPARE(text(0, CallsModel::Amount), "00:01:05\n6.00 units");
    choose(0);
    QVERIFY(!button("Delete")->isEnabled());
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(rows(), 1);
    QTest::mouseClick(button("Delete all ..."), Qt::LeftButton);
    answer("Delete all");
    QCOMPARE(rows(), 1);
    QCOMPARE(handset->hangUp(), 0);
    QVERIFY(button("Delete")->isEnabled());
}

// --- deleting

void TestRecentCalls::theChosenCallIsDeletedAndTheTotalsStay()
{
    addHistory(3);
    QVERIFY(!button("Delete")->isEnabled());
    choose(1);
    QTest::mouseClick(button("Delete"), Qt::LeftButton);
    QCOMPARE(numbers(), (QStringList{"3", "1"}));
    QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), 1);
    QCOMPARE(dialedTime(), "00:00:03");
    QCOMPARE(failure(), QString());
}

void TestRecentCalls::theDeleteKeyDeletesTheChosenCall()
{
    addHistory(2);
    choose(0);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Delete);
    QCOMPARE(numbers(), QStringList{"1"});
}

void TestRecentCalls::deletingAllAsksAndTheTotalsStay()
{
    QVERIFY(!button("Delete all ...")->isEnabled());
    addHistory(3);
    QTest::mouseClick(button("Delete all ..."), Qt::LeftButton);
    QCOMPARE(rows(), 3);
    QVERIFY(question()->isModal());
    QVERIFY2(question()->text().contains("totals stay"), qPrintable(question()->text()));
    answer("Delete all");
    QCOMPARE(rows(), 0);
    QCOMPARE(dialedTime(), "00:00:03");
    QVERIFY(!button("Delete all ...")->isEnabled());
}

void TestRecentCalls::deletingAllCanBeGivenUp()
{
    addHistory(3);
    QTest::mouseClick(button("Delete all ..."), Qt::LeftButton);
    QVERIFY(question());
    QTest::keyClick(question(), Qt::Key_Return); // what a hasty user presses
    QTRY_VERIFY(!question());
    QCOMPARE(rows(), 3);
}

void TestRecentCalls::whatIsDeletedElsewhereGoesAndTheChoiceStays()
{
    addHistory(4);
    choose(2);
    QList<KeptCall> kept;
    QCOMPARE(owner->keptCalls()->newest(handset::KeptCalls::endOfTime, 10, kept), 0);
    QCOMPARE(owner->keptCalls()->remove(kept.at(1).id), 0);
    QCOMPARE(numbers(), (QStringList{"4", "2", "1"}));
    QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), 1);
}

// --- long logs

void TestRecentCalls::aMillionCallsOpenWithTheFirstPagesAlone()
{
    const auto endless = openEndless();
    QVERIFY(rows() >= CallsModel::pageSize);
    const qint64 most = 10 * CallsModel::pageSize; // the view looks a little ahead
    QVERIFY2(endless->calls.rowsRead <= most, qPrintable(QString::number(endless->calls.rowsRead)));
    QCOMPARE(text(0, CallsModel::Call).section(u'\n', 0, 0), "1000000");
}

void TestRecentCalls::theNextPageIsReadWhenTheLastRowIsSeen()
{
    const auto endless = openEndless();
    endless->calls.last = 150;
    emit endless->changed();
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    QTRY_COMPARE(rows(), 150);
    QCOMPARE(text(149, CallsModel::Call).section(u'\n', 0, 0), "1");
    QVERIFY(!table->model()->canFetchMore({}));
}

void TestRecentCalls::aDeletionBehindTheFirstPageIsSeen()
{
    addHistory(150);
    while (table->model()->canFetchMore({}))
        table->model()->fetchMore({});
    QCOMPARE(rows(), 150);
    QList<KeptCall> kept;
    QCOMPARE(owner->keptCalls()->newest(handset::KeptCalls::endOfTime, 200, kept), 0);
    QCOMPARE(owner->keptCalls()->remove(kept.at(140).id), 0);
    QCOMPARE(rows(), 149);
    QVERIFY(!numbers().contains("10"));
    QVERIFY(numbers().contains("11"));
    QVERIFY(numbers().contains("1"));
}

void TestRecentCalls::manyNewCallsComeInFrontOfTheOldOnes()
{
    addHistory(120);
    while (table->model()->canFetchMore({}))
        table->model()->fetchMore({});
    addHistory(250);
    QStringList expected;
    for (const int newest : {250, 120}) {
        for (int number = newest; number > 0; --number)
            expected << QString::number(number);
    }
    while (table->model()->canFetchMore({}))
        table->model()->fetchMore({});
    QCOMPARE(numbers(), expected);
}

// --- what fails

void TestRecentCalls::aLogThatCannotBeReadIsTold()
{
    const auto endless = openEndless();
    const int before = rows();
    endless->calls.status = handset::StorageFailed;
    emit endless->changed();
    QCOMPARE(failure(), "The call log cannot be read.");
    QCOMPARE(rows(), before); // what was read is still what is known
    endless->calls.status = handset::Success;
    emit endless->changed();
    QCOMPARE(failure(), QString());
}

void TestRecentCalls::aDeletionThatFailsIsTold()
{
    addHistory(1);
    choose(0);
    QList<KeptCall> kept;
    QCOMPARE(owner->keptCalls()->newest(handset::KeptCalls::endOfTime, 1, kept), 0);
    owner->setChangeListener({});
    const QSignalBlocker unheard(handset); // another process that nobody hears
    QCOMPARE(owner->keptCalls()->remove(kept.at(0).id), 0);
    QTest::mouseClick(button("Delete"), Qt::LeftButton);
    QCOMPARE(failure(), "Not done: the call is not kept any more.");
    QCOMPARE(rows(), 0);
}

void TestRecentCalls::aTelephoneThatKeepsNoCallsHasNothingToDelete()
{
    class Bare final : public handset::DecoratedHandset<Bare>
    {
    };
    open(std::make_shared<Bare>());
    QCOMPARE(rows(), 0);
    QVERIFY(!table->isEnabled());
    QVERIFY(!button("Delete all ...")->isEnabled());
}

KAV_TEST_GROUP(TestRecentCalls, QApplication);
#include "tst_recent_calls.moc"
