#include "ToolkitRecorder.h"

#include "Journal.h"

#include "PHONE_MsgClient.h"
#include "ZKbMainWidget.h"
#include "ZListBox.h"
#include "ZMessageDlg.h"
#include "ZSettingItem.h"
#include "ZSoftKey.h"

#include <type_traits>

#include <dlfcn.h>

namespace {

int rowsMade = 0;
int dialogsMade = 0;
int depth = 0; // of recorded operations inside each other

// What an operation does inside is not the plug-in's doing, and not recorded. (Who called cannot be seen from the
// return address: a call at the end of a function may be a jump.)
struct Recorded {
    Recorded() { ++depth; }
    ~Recorded() { --depth; }
    Q_DISABLE_COPY_MOVE(Recorded)
    const bool isOutermost = depth == 0;
};

template <typename Argument>
QString shown(const Argument &argument)
{
    if constexpr (std::is_same_v<Argument, QString>)
        return argument.isNull() ? QStringLiteral("null") : QLatin1Char('"') + argument + QLatin1Char('"');
    else if constexpr (std::is_same_v<Argument, bool>)
        return argument ? QStringLiteral("true") : QStringLiteral("false");
    else if constexpr (std::is_same_v<Argument, const char *>)
        return shown(QString::fromLatin1(argument));
    else if constexpr (std::is_pointer_v<Argument>)
        return Journal::shared().nameOf(argument);
    else if constexpr (std::is_same_v<Argument, QRect>)
        return QStringLiteral("%1, %2, %3, %4")
            .arg(argument.x())
            .arg(argument.y())
            .arg(argument.width())
            .arg(argument.height());
    else
        return QString::number(static_cast<qint64>(argument));
}

template <typename... Arguments>
void record(const QString &operation, const Arguments &...arguments)
{
    const QStringList texts{shown(arguments)...};
    Journal::shared().record(operation + QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')'));
}

QString of(const void *object, const char *operation)
{
    return Journal::shared().nameOf(object) + QLatin1Char('.') + QLatin1String(operation);
}

bool isKnown(const void *object)
{
    return object && Journal::shared().knows(object);
}

void nameAndWatch(QObject *object, const QString &name)
{
    Journal::shared().nameObject(object, name);
    QObject::connect(object, &QObject::destroyed, object,
                     [name] { Journal::shared().record(QLatin1String("delete ") + name); });
}

// The library's own operation, behind ours.
template <typename Function>
Function *original(const char *symbol)
{
    void *address = dlsym(RTLD_NEXT, symbol);
    if (!address)
        qFatal("no library has %s any longer", symbol);
    return reinterpret_cast<Function *>(address);
}

} // namespace

void ToolkitRecorder::restart()
{
    rowsMade = 0;
    dialogsMade = 0;
}

// Declares a function that the linker knows as `SYMBOL`, the operation of a library. An object comes first as `self`;
// a constructor is the operation that builds it there.
#define KAV_STANDS_FOR(SYMBOL, RESULT, NAME, ...)                                                                 \
    extern "C" RESULT NAME(__VA_ARGS__) asm(SYMBOL);                                                              \
    static auto *original_##NAME()                                                                                \
    {                                                                                                             \
        static auto *const function = original<RESULT(__VA_ARGS__)>(SYMBOL);                                      \
        return function;                                                                                          \
    }                                                                                                             \
    RESULT NAME(__VA_ARGS__)

KAV_STANDS_FOR("_ZN13ZKbMainWidgetC2EP7QWidgetPKcj", void, makeScreen, ZKbMainWidget *self, QWidget *parent,
               const char *name, unsigned int flags)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("screen"));
        record(QStringLiteral("ZKbMainWidget"), parent, name, flags);
    }
    original_makeScreen()(self, parent, name, flags);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget18setMainWidgetTitleERK7QString", void, setTitle, ZKbMainWidget *self,
               const QString &title)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setMainWidgetTitle"), title);
    original_setTitle()(self, title);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget12setCSTWidgetEP7QWidget", void, setBar, ZKbMainWidget *self, QWidget *bar)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setCSTWidget"), bar);
    original_setBar()(self, bar);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget16getContentWidgetEb", QWidget *, getContent, ZKbMainWidget *self, bool create)
{
    const Recorded call;
    QWidget *content = original_getContent()(self, create);
    if (call.isOutermost && isKnown(self)) {
        Journal::shared().nameObject(content, QStringLiteral("content"));
        record(of(self, "getContentWidget"), create);
    }
    return content;
}

KAV_STANDS_FOR("_ZN8ZSoftKeyC1ERK7QStringP7QWidgetS4_", void, makeSoftKey, ZSoftKey *self, const QString &layout,
               QWidget *parent, QWidget *target)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("softKey"));
        record(QStringLiteral("ZSoftKey"), layout, parent, target);
    }
    original_makeSoftKey()(self, layout, parent, target);
}

KAV_STANDS_FOR("_ZN8ZSoftKey7setTextENS_7KEY_IDXERK7QStringNS_13TEXT_PRIORITYE", void, setSoftKeyText,
               ZSoftKey *self, ZSoftKey::KEY_IDX key, const QString &text, ZSoftKey::TEXT_PRIORITY priority)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setText"), key, text, priority);
    original_setSoftKeyText()(self, key, text, priority);
}

KAV_STANDS_FOR("_ZN8ZSoftKey14setClickedSlotENS_7KEY_IDXEPK7QObjectPKc", void, setClickedSlot, ZSoftKey *self,
               ZSoftKey::KEY_IDX key, const QObject *receiver, const char *member)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setClickedSlot"), key, receiver, member);
    original_setClickedSlot()(self, key, receiver, member);
}

KAV_STANDS_FOR("_ZN8ZListBoxC1E7QStringP7QWidgetjN12ZSkinService11WidgetClsIDE", void, makeList, ZListBox *self,
               QString type, QWidget *parent, unsigned int flags, ZSkinService::WidgetClsID skinClass)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("list"));
        record(QStringLiteral("ZListBox"), type, parent, flags, skinClass);
    }
    original_makeList()(self, type, parent, flags, skinClass);
}

KAV_STANDS_FOR("_ZN8ZListBox10insertItemEPK9ZListItemib", void, insertItem, ZListBox *self, const ZListItem *item,
               int index, bool show)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "insertItem"), item, index, show);
    original_insertItem()(self, item, index, show);
}

KAV_STANDS_FOR("_ZN12ZSettingItemC1EP8ZListBox7QString", void, makeRow, ZSettingItem *self, ZListBox *list,
               QString type)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("row %1").arg(rowsMade++));
        record(QStringLiteral("ZSettingItem"), list, type);
    }
    original_makeRow()(self, list, type);
}

KAV_STANDS_FOR("_ZN12ZSettingItem13appendSubItemEi7QStringbNS_17SettingItemRegionE", void, appendSubItem,
               ZSettingItem *self, int line, QString text, bool marked, ZSettingItem::SettingItemRegion region)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "appendSubItem"), line, text, marked, region);
    original_appendSubItem()(self, line, text, marked, region);
}

KAV_STANDS_FOR("_ZN12ZSettingItem10setSubItemEii7QStringbNS_17SettingItemRegionE", void, setSubItem,
               ZSettingItem *self, int line, int subItem, QString text, bool marked,
               ZSettingItem::SettingItemRegion region)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setSubItem"), line, subItem, text, marked, region);
    original_setSubItem()(self, line, subItem, text, marked, region);
}

KAV_STANDS_FOR("_ZN11ZMessageDlgC1ERK7QStringS2_NS_14MessageDlgTypeEiP7QWidgetPKcbj", void, makeDialog,
               ZMessageDlg *self, const QString &header, const QString &message, ZMessageDlg::MessageDlgType type,
               int timeout, QWidget *parent, const char *name, bool modal, unsigned int flags)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("ZMessageDlg"), header, message, type, timeout, parent, name, modal, flags);
    original_makeDialog()(self, header, message, type, timeout, parent, name, modal, flags);
    if (call.isOutermost)
        nameAndWatch(self, QStringLiteral("dialog %1").arg(++dialogsMade));
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClientC1EP7QObjectPKc", void, makeClient, PHONE_MsgClient *self, QObject *parent,
               const char *name)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("PHONE_MsgClient"), parent, name);
    original_makeClient()(self, parent, name);
    if (call.isOutermost)
        nameAndWatch(self, QStringLiteral("msgClient"));
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClient32getTotalByteAndConnectedDurationEv", int, refreshTotals,
               PHONE_MsgClient *self)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "getTotalByteAndConnectedDuration"));
    return original_refreshTotals()(self);
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClient18resetTotalDurationEb", int, resetTotal, PHONE_MsgClient *self,
               bool confirmed)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "resetTotalDuration"), confirmed);
    return original_resetTotal()(self, confirmed);
}

KAV_STANDS_FOR("_ZN7QWidget11setGeometryERK5QRect", void, setGeometry, QWidget *self, const QRect &rectangle)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setGeometry"), rectangle);
    original_setGeometry()(self, rectangle);
}

KAV_STANDS_FOR("_ZN7QWidget4showEv", void, showWidget, QWidget *self)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "show"));
    original_showWidget()(self);
}

KAV_STANDS_FOR("_ZN7QObject7connectEPKS_PKcS1_S3_N2Qt14ConnectionTypeE", QMetaObject::Connection, connectObjects,
               const QObject *sender, const char *signal, const QObject *receiver, const char *member,
               Qt::ConnectionType type)
{
    const Recorded call;
    if (call.isOutermost && isKnown(sender) && isKnown(receiver))
        record(QStringLiteral("connect"), sender, signal, receiver, member);
    return original_connectObjects()(sender, signal, receiver, member, type);
}
