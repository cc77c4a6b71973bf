// The window as it speaks each language.
#include "handset/CallLog.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "host/PhoneWindow.h"
#include "host/faults/FaultyHandset.h"
#include "host/panel/Panel.h"
#include "host/phone/PhoneKey.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "simulated/SimulatedHandset.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZSoftKey.h"
#include "translations/Texts.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTabBar>

namespace {

using handset::CallTime;
using handset::simulated::SimulatedHandset;
using host::PhoneKey;

// A caption of the display's softkey bar, as the user sees it.
const QWidget *captionOf(const QString &text)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && qobject_cast<const ZSoftKey *>(widget->parentWidget()) &&
            widget->accessibleName() == text)
            return widget;
    }
    return nullptr;
}

int centreOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center()).x();
}

// What says something that nothing else says.
QList<QWidget *> controlsOf(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QPushButton *button : window.findChildren<QPushButton *>())
        controls << button;
    for (QCheckBox *box : window.findChildren<QCheckBox *>())
        controls << box;
    for (QLabel *label : window.findChildren<QLabel *>()) {
        if (!label->wordWrap())
            controls << label;
    }
    return controls;
}

} // namespace

class TestWindowInLanguages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyTextOfThePanelHasItsPlace_data() { languages(); }
    void everyTextOfThePanelHasItsPlace();
    void thePhysicalKeyUnderASoftkeyAnswersIt_data();
    void thePhysicalKeyUnderASoftkeyAnswersIt();
    void thePanelIsOnTheSideWhereReadingEnds_data() { languages(); }
    void thePanelIsOnTheSideWhereReadingEnds();

private:
    void languages();
    void openWindow(const QString &language);
    void clickKey(const char *name) { QTest::mouseClick(window->findChild<PhoneKey *>(name), Qt::LeftButton); }

    std::unique_ptr<language::Catalogue> catalogue;
    host::ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    std::shared_ptr<host::FaultyHandset> installed;
    std::unique_ptr<host::PhoneWindow> window;
};

void TestWindowInLanguages::languages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestWindowInLanguages::init()
{
    QCOMPARE(library.load(QStringLiteral("libkavcallmeter.so.1")), QString());
    clock = std::make_shared<handset::ManualClock>(1'000'000);
    owner = handset::open({QStringLiteral("simulated"), {}, clock}).handset;
    QVERIFY(owner);
    installed = std::make_shared<host::FaultyHandset>(owner);
    handset::install(installed);
    catalogue = std::make_unique<language::Catalogue>();
}

void TestWindowInLanguages::cleanup()
{
    window.reset();
    handset::install(nullptr);
    catalogue.reset();
}

void TestWindowInLanguages::openWindow(const QString &language)
{
    QCOMPARE(catalogue->install(language::catalogueOf(language)), QString());
    window = std::make_unique<host::PhoneWindow>(
        library, host::PhoneWindow::OpenedHandset{owner, {}, {}, &installed->faults()});
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 60'000));
    QVERIFY(window->complete());
}

void TestWindowInLanguages::everyTextOfThePanelHasItsPlace()
{
    QFETCH(QString, language);
    openWindow(language);
    const auto *panel = window->findChild<host::Panel *>();
    const auto *tabs = panel->findChild<QTabBar *>();
    const auto *pages = panel->findChild<QScrollArea *>();
    QStringList tooWide;
    // All at once: none has to be scrolled to.
    if (!tabs->rect().contains(tabs->tabRect(tabs->count() - 1)))
        tooWide << tabs->tabText(tabs->count() - 1);
    for (int page = 0; page < tabs->count(); ++page) {
        window->choosePage(page);
        QCoreApplication::processEvents();
        if (pages->widget()->width() > pages->viewport()->width())
            tooWide << QStringLiteral("page %1: %2 of %3")
                           .arg(page)
                           .arg(pages->widget()->width())
                           .arg(pages->viewport()->width());
        for (const QWidget *control : controlsOf(*panel)) {
            if (control->isVisible() && control->width() < control->minimumSizeHint().width())
                tooWide << control->property("text").toString();
        }
    }
    QCOMPARE(tabs->count(), 6);
    QVERIFY2(window->width() <= 1024, qPrintable(QString::number(window->width())));
    QVERIFY2(tooWide.isEmpty(), qPrintable(tooWide.join(u'\n')));
}

void TestWindowInLanguages::thePhysicalKeyUnderASoftkeyAnswersIt_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("english");
    QTest::addColumn<quint32>("secondsAfterwards");
    for (const QString &language : translatedLanguages()) {
        QTest::newRow(qPrintable(language + ", No keeps the figure")) << language << "No" << 9U;
        QTest::newRow(qPrintable(language + ", Yes resets it")) << language << "Yes" << 0U;
    }
}

void TestWindowInLanguages::thePhysicalKeyUnderASoftkeyAnswersIt()
{
    QFETCH(QString, language);
    QFETCH(QString, english);
    QFETCH(quint32, secondsAfterwards);
    openWindow(language);
    auto *simulated = dynamic_cast<SimulatedHandset *>(owner.get());
    QCOMPARE(simulated->dial(QStringLiteral("5550123"), handset::CallKind::Voice), 0);
    QCOMPARE(simulated->remoteAnswer(), 0);
    clock->advance(9000);
    QCOMPARE(simulated->hangUp(), 0);

    QVERIFY(window->openScreen(0));
    clickKey("key Down");
    clickKey("key Select"); // resets the dialed calls, after a question
    const QByteArray key = "TXT_RID_SOFTKEY_" + english.toUpper().toLatin1();
    const QString caption = QCoreApplication::translate("ZMessageDlg", key, english.toLatin1());
    QVERIFY(caption != QLatin1StringView(key));
    QTRY_VERIFY(captionOf(caption));
    auto *left = window->findChild<PhoneKey *>("key Left softkey");
    auto *right = window->findChild<PhoneKey *>("key Right softkey");
    QVERIFY(centreOf(left) < centreOf(right));
    const int x = centreOf(captionOf(caption));
    QTest::mouseClick(std::abs(centreOf(left) - x) < std::abs(centreOf(right) - x) ? left : right, Qt::LeftButton);
    QTRY_VERIFY(!captionOf(caption));
    CallTime time;
    QCOMPARE(owner->callLog()->dialedCallsTime(time), 0);
    QCOMPARE(time, CallTime::fromSeconds(secondsAfterwards));
}

void TestWindowInLanguages::thePanelIsOnTheSideWhereReadingEnds()
{
    QFETCH(QString, language);
    openWindow(language);
    const bool isRightToLeft = QLocale(language).textDirection() == Qt::RightToLeft;
    QCOMPARE(QGuiApplication::isRightToLeft(), isRightToLeft);
    const bool isPanelLeft =
        centreOf(window->findChild<host::Panel *>()) < centreOf(window->findChild<PhoneKey *>("key Select"));
    QCOMPARE(isPanelLeft, isRightToLeft);
}

KAV_TEST_GROUP(TestWindowInLanguages, QApplication);
#include "tst_window_in_languages.moc"
