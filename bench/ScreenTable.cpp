#include "ScreenTable.h"

#include "PHONE_MsgClient.h"
#include "PHONE_UI_RecentCallMeter.h"
#include "PHONE_UI_RecentCallTimesView.h"
#include "ZKbMainWidget.h"
#include "ZListBox.h"
#include "ZSoftKey.h"
#include "util.h"

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

ScreenTexts callTimes()
{
    PHONE_UI_RecentCallMeter meter;
    return {QStringLiteral("Call Times"),
            QString(),
            QStringLiteral("Back"),
            {{QStringLiteral("Last Call"), meter.getLastCallTimes()},
             {QStringLiteral("Dialed Calls"), meter.getDialedCallsTimes()},
             {QStringLiteral("Answered Calls"), meter.getAnsweredCallsTimes()},
             {QStringLiteral("Data Calls"), dataCallTime()},
             {QStringLiteral("All Calls"), meter.getAllCallsTimes()},
             {QStringLiteral("Lifetime Calls"), meter.getLifeTimeCallsTimes()}}};
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
