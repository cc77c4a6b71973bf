#include "bench/ScreenTable.h"

#include "callsetup/PHONE_ENG_Setup.h"
#include "handset/AdviceOfCharge.h"
#include "message/PHONE_MsgClient.h"
#include "telephony/util.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZSoftKey.h"
#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallCostsView.h"
#include "utility/PHONE_UI_RecentCallDataTimesView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include <array>

namespace bench {

namespace {

QString dataCallTime()
{
    PHONE_MsgClient client(nullptr);
    client.getTotalByteAndConnectedDuration();
    quint32 seconds = 0;
    UTIL_GetTotalDuration(&seconds);
    return QString::asprintf("%02u:%02u:%02u", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

// Every screen has "Back" on the right, and nothing on the left.
ScreenTexts screenTexts(const QString &title, const QList<TextRow> &rows)
{
    return {title, QString(), QStringLiteral("Back"), rows};
}

ScreenTexts callTimes()
{
    PHONE_UI_RecentCallMeter meter;
    return screenTexts(QStringLiteral("Call Times"),
                       {{QStringLiteral("Last Call"), meter.getLastCallTimes()},
                        {QStringLiteral("Dialed Calls"), meter.getDialedCallsTimes()},
                        {QStringLiteral("Answered Calls"), meter.getAnsweredCallsTimes()},
                        {QStringLiteral("Data Calls"), dataCallTime()},
                        {QStringLiteral("All Calls"), meter.getAllCallsTimes()},
                        {QStringLiteral("Lifetime Calls"), meter.getLifeTimeCallsTimes()}});
}

ScreenTexts callCosts()
{
    PHONE_UI_RecentCallMeter meter;
    const QString unit = QLatin1Char(' ') + meter.getCurrencyUnit();
    return screenTexts(QStringLiteral("Call Costs"),
                       {{QStringLiteral("Credit Available"), meter.getCreditAvailable() + unit},
                        {QStringLiteral("Expiration Date"), meter.getExpirationDate()},
                        {QStringLiteral("Last Deposit"), meter.getLastDeposit() + unit},
                        {QStringLiteral("Last Call Cost"), meter.getLastCallCost() + unit},
                        {QStringLiteral("Dialed Calls Cost"), meter.getDialedCallsCost() + unit},
                        {QStringLiteral("Answered Calls Cost"), meter.getAnsweredCallsCost() + unit},
                        {QStringLiteral("All Calls Cost"), meter.getAllCallsCost() + unit},
                        {QStringLiteral("Call Cost Setup"), QString()}});
}

QString onOrOff(bool isOn)
{
    return isOn ? QStringLiteral("On") : QStringLiteral("Off");
}

ScreenTexts costSetup()
{
    PHONE_UI_RecentCallMeter meter;
    const QString unit = QLatin1Char(' ') + meter.getCurrencyUnit();
    PHONE_ENG_Setup *engine = PHONE_ENG_Setup::instance();
    using File = handset::AdviceOfCharge::File;
    for (const File file : {File::AcmFile, File::AcmMaxFile, File::PuctFile}) {
        unsigned char rule = 0;
        engine->getEFUpdateRule(file, rule);
    }
    QString limit;
    bool isLimited = false;
    unsigned char type = 0;
    QString price;
    QString currency;
    engine->getMeterMax(limit, isLimited);
    engine->getChargeType(type);
    engine->getPriceUnitCurrency(price, currency);
    return screenTexts(QStringLiteral("Call-Cost Setup"),
                       {{QStringLiteral("Reset All"), QString()},
                        {QStringLiteral("Reset All Call Costs"), QString()},
                        {QStringLiteral("Reset Dialed Call Costs"), QString()},
                        {QStringLiteral("Reset Answered Call Costs"), QString()},
                        {QStringLiteral("Credit Limit"), onOrOff(isLimited)},
                        {QStringLiteral("Adjust Credit Limit"), limit + unit},
                        {QStringLiteral("Currency"), onOrOff(type == 1)},
                        {QStringLiteral("Currency Type"), currency},
                        {QStringLiteral("Cost Per Minute"), price + unit}});
}

QString orElse(const QString &name, const QString &fallback)
{
    return name.isEmpty() ? fallback : name;
}

ScreenTexts dataTimes()
{
    PHONE_UI_RecentCallMeter meter;
    meter.getRDT();
    meter.getADT();
    return screenTexts(
        QStringLiteral("Data Times"),
        {{QStringLiteral("Current Data Session"), QString()},
         {orElse(meter.getRDT_Session1_Apn(), QStringLiteral("GPRS Data Session 1")), meter.getRDT_Session1()},
         {orElse(meter.getRDT_Session2_Apn(), QStringLiteral("GPRS Data Session 2")), meter.getRDT_Session2()},
         {orElse(meter.getRDT_Session3_Apn(), QStringLiteral("GPRS Data Session 3")), meter.getRDT_Session3()},
         {QStringLiteral("All Data Sessions"), QString()},
         {QStringLiteral("Total Time"), meter.getADT_Sessions()},
         {QStringLiteral("Reset All Data Sessions"), QString()}});
}

ScreenTexts dataVolumes()
{
    PHONE_UI_RecentCallMeter meter;
    meter.getRDV();
    return screenTexts(QStringLiteral("Data Volumes"),
                       {{QStringLiteral("Current Data Session"), QString()},
                        {orElse(meter.getRDV_Session1_Apn(), QStringLiteral("GPRS Data Session 1")), QString()},
                        {orElse(meter.getRDV_Session2_Apn(), QStringLiteral("GPRS Data Session 2")), QString()},
                        {orElse(meter.getRDV_Session3_Apn(), QStringLiteral("GPRS Data Session 3")), QString()},
                        {QStringLiteral("All Data Sessions"), QString()},
                        {QStringLiteral("Total Data Transferred"), QString()},
                        {QStringLiteral("Reset All Data Sessions"), QString()}});
}

QString detailName()
{
    return QStringLiteral("internet");
}

ScreenTexts dataVolume()
{
    PHONE_UI_RecentCallMeter meter;
    meter.getRDV();
    return screenTexts(QStringLiteral("Data Volume"),
                       {{QStringLiteral("Current Data Session"), QString()},
                        {detailName(), QString()},
                        {QStringLiteral("Sent"), meter.getRDV_Session1_Sent()},
                        {QStringLiteral("Received"), meter.getRDV_Session1_Received()},
                        {QStringLiteral("Sum"), meter.getRDV_Session1_Total()}});
}

QWidget *createDataVolume(QWidget *display)
{
    return new PHONE_UI_RecentCallDataVolumesDetailView(QString(), detailName(), 1, display, nullptr);
}

QWidget *createCostSetup(QWidget *display)
{
    return new PHONE_UI_RecentCallCostSetupView(display, nullptr);
}

QObject *dataVolumeMeter()
{
    auto *meter = new PHONE_UI_RecentCallMeter;
    meter->getRDV();
    return meter;
}

void deleteScreen(QWidget *screen)
{
    delete screen;
}

// What an exported pair of functions is to the host.
template <auto createScreen>
QWidget *create(QWidget *display)
{
    return createScreen(display, nullptr);
}

template <typename Screen, void (*destroyScreen)(Screen *)>
void destroy(QWidget *screen)
{
    destroyScreen(static_cast<Screen *>(screen));
}

constexpr std::array screens{
    ScreenEntry{"Call Times", &create<&create_callTime>, &destroy<PHONE_UI_RecentCallTimesView, &destroy_callTime>,
                &callTimes},
    ScreenEntry{"Call Costs", &create<&create_callCost>, &destroy<PHONE_UI_RecentCallCostsView, &destroy_callCost>,
                &callCosts},
    ScreenEntry{"Call-Cost Setup", &createCostSetup, &deleteScreen, &costSetup},
    ScreenEntry{"Data Times", &create<&create_dataTime>,
                &destroy<PHONE_UI_RecentCallDataTimesView, &destroy_dataTime>, &dataTimes},
    ScreenEntry{"Data Volumes", &create<&create_dataVolume>,
                &destroy<PHONE_UI_RecentCallDataVolumesView, &destroy_dataVolume>, &dataVolumes},
    ScreenEntry{"Data Volume (detail)", &createDataVolume, &deleteScreen, &dataVolume, &dataVolumeMeter},
};

} // namespace

std::span<const ScreenEntry> screenTable()
{
    return screens;
}

ScreenTexts textsOn(const QWidget *screen)
{
    ScreenTexts texts;
    if (const auto *frame = qobject_cast<const ZKbMainWidget *>(screen))
        texts.title = frame->mainWidgetTitle();
    if (const auto *keys = screen->findChild<ZSoftKey *>()) {
        texts.leftKey = keys->text(ZSoftKey::LeftKey);
        texts.rightKey = keys->text(ZSoftKey::RightKey);
    }
    const auto *list = screen->findChild<ZListBox *>();
    for (int row = 0; list && row < list->count(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        texts.rows.append({index.data(Qt::DisplayRole).toString(), index.data(ZListBox::ValueRole).toString()});
    }
    return texts;
}

} // namespace bench
