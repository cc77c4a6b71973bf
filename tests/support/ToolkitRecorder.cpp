#include "ToolkitRecorder.h"

#include "CalledFrom.h"
#include "Journal.h"

#include "PHONE_MsgClient.h"
#include "ZKbMainWidget.h"
#include "ZListBox.h"
#include "ZMessageDlg.h"
#include "ZSettingItem.h"
#include "ZSoftKey.h"

#include <type_traits>

namespace {

int rowsMade = 0;
int dialogsMade = 0;

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

#define KAV_FROM_PLUGIN isCodeOf(pluginFile, __builtin_return_address(0))

KAV_STANDS_FOR("_ZN13ZKbMainWidgetC2EP7QWidgetPKcj", void, makeScreen, ZKbMainWidget *self, QWidget *parent,
               const char *name, unsigned int flags)
{
    if (KAV_FROM_PLUGIN) {
        Journal::shared().nameObject(self, QStringLiteral("screen"));
        record(QStringLiteral("ZKbMainWidget"), parent, name, flags);
    }
    original_makeScreen()(self, parent, name, flags);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget18setMainWidgetTitleERK7QString", void, setTitle, ZKbMainWidget *self,
               const QString &title)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setMainWidgetTitle"), title);
    original_setTitle()(self, title);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget12setCSTWidgetEP7QWidget", void, setBar, ZKbMainWidget *self, QWidget *bar)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setCSTWidget"), bar);
    original_setBar()(self, bar);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget16getContentWidgetEb", QWidget *, getContent, ZKbMainWidget *self, bool create)
{
    QWidget *content = original_getContent()(self, create);
    if (KAV_FROM_PLUGIN) {
        Journal::shared().nameObject(content, QStringLiteral("content"));
        record(of(self, "getContentWidget"), create);
    }
    return content;
}

KAV_STANDS_FOR("_ZN8ZSoftKeyC1ERK7QStringP7QWidgetS4_", void, makeSoftKey, ZSoftKey *self, const QString &layout,
               QWidget *parent, QWidget *target)
{
    if (KAV_FROM_PLUGIN) {
        Journal::shared().nameObject(self, QStringLiteral("softKey"));
        record(QStringLiteral("ZSoftKey"), layout, parent, target);
    }
    original_makeSoftKey()(self, layout, parent, target);
}

KAV_STANDS_FOR("_ZN8ZSoftKey7setTextENS_7KEY_IDXERK7QStringNS_13TEXT_PRIORITYE", void, setSoftKeyText,
               ZSoftKey *self, ZSoftKey::KEY_IDX key, const QString &text, ZSoftKey::TEXT_PRIORITY priority)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setText"), key, text, priority);
    original_setSoftKeyText()(self, key, text, priority);
}

KAV_STANDS_FOR("_ZN8ZSoftKey14setClickedSlotENS_7KEY_IDXEPK7QObjectPKc", void, setClickedSlot, ZSoftKey *self,
               ZSoftKey::KEY_IDX key, const QObject *receiver, const char *member)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setClickedSlot"), key, receiver, member);
    original_setClickedSlot()(self, key, receiver, member);
}

KAV_STANDS_FOR("_ZN8ZListBoxC1E7QStringP7QWidgetjN12ZSkinService11WidgetClsIDE", void, makeList, ZListBox *self,
               QString type, QWidget *parent, unsigned int flags, ZSkinService::WidgetClsID skinClass)
{
    if (KAV_FROM_PLUGIN) {
        Journal::shared().nameObject(self, QStringLiteral("list"));
        record(QStringLiteral("ZListBox"), type, parent, flags, skinClass);
    }
    original_makeList()(self, type, parent, flags, skinClass);
}

KAV_STANDS_FOR("_ZN8ZListBox10insertItemEPK9ZListItemib", void, insertItem, ZListBox *self, const ZListItem *item,
               int index, bool show)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "insertItem"), item, index, show);
    original_insertItem()(self, item, index, show);
}

KAV_STANDS_FOR("_ZN12ZSettingItemC1EP8ZListBox7QString", void, makeRow, ZSettingItem *self, ZListBox *list,
               QString type)
{
    if (KAV_FROM_PLUGIN) {
        Journal::shared().nameObject(self, QStringLiteral("row %1").arg(rowsMade++));
        record(QStringLiteral("ZSettingItem"), list, type);
    }
    original_makeRow()(self, list, type);
}

KAV_STANDS_FOR("_ZN12ZSettingItem13appendSubItemEi7QStringbNS_17SettingItemRegionE", void, appendSubItem,
               ZSettingItem *self, int line, QString text, bool marked, ZSettingItem::SettingItemRegion region)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "appendSubItem"), line, text, marked, region);
    original_appendSubItem()(self, line, text, marked, region);
}

KAV_STANDS_FOR("_ZN12ZSettingItem10setSubItemEii7QStringbNS_17SettingItemRegionE", void, setSubItem,
               ZSettingItem *self, int line, int subItem, QString text, bool marked,
               ZSettingItem::SettingItemRegion region)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setSubItem"), line, subItem, text, marked, region);
    original_setSubItem()(self, line, subItem, text, marked, region);
}

KAV_STANDS_FOR("_ZN11ZMessageDlgC1ERK7QStringS2_NS_14MessageDlgTypeEiP7QWidgetPKcbj", void, makeDialog,
               ZMessageDlg *self, const QString &header, const QString &message, ZMessageDlg::MessageDlgType type,
               int timeout, QWidget *parent, const char *name, bool modal, unsigned int flags)
{
    const bool isPlugins = KAV_FROM_PLUGIN;
    if (isPlugins)
        record(QStringLiteral("ZMessageDlg"), header, message, type, timeout, parent, name, modal, flags);
    original_makeDialog()(self, header, message, type, timeout, parent, name, modal, flags);
    if (isPlugins)
        nameAndWatch(self, QStringLiteral("dialog %1").arg(++dialogsMade));
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClientC1EP7QObjectPKc", void, makeClient, PHONE_MsgClient *self, QObject *parent,
               const char *name)
{
    const bool isPlugins = KAV_FROM_PLUGIN;
    if (isPlugins)
        record(QStringLiteral("PHONE_MsgClient"), parent, name);
    original_makeClient()(self, parent, name);
    if (isPlugins)
        nameAndWatch(self, QStringLiteral("msgClient"));
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClient32getTotalByteAndConnectedDurationEv", int, refreshTotals,
               PHONE_MsgClient *self)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "getTotalByteAndConnectedDuration"));
    return original_refreshTotals()(self);
}

KAV_STANDS_FOR("_ZN15PHONE_MsgClient18resetTotalDurationEb", int, resetTotal, PHONE_MsgClient *self,
               bool confirmed)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "resetTotalDuration"), confirmed);
    return original_resetTotal()(self, confirmed);
}

KAV_STANDS_FOR("_ZN7QWidget11setGeometryERK5QRect", void, setGeometry, QWidget *self, const QRect &rectangle)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "setGeometry"), rectangle);
    original_setGeometry()(self, rectangle);
}

KAV_STANDS_FOR("_ZN7QWidget4showEv", void, showWidget, QWidget *self)
{
    if (KAV_FROM_PLUGIN)
        record(of(self, "show"));
    original_showWidget()(self);
}

KAV_STANDS_FOR("_ZN7QObject7connectEPKS_PKcS1_S3_N2Qt14ConnectionTypeE", QMetaObject::Connection, connectObjects,
               const QObject *sender, const char *signal, const QObject *receiver, const char *member,
               Qt::ConnectionType type)
{
    if (KAV_FROM_PLUGIN)
        record(QStringLiteral("connect"), sender, signal, receiver, member);
    return original_connectObjects()(sender, signal, receiver, member, type);
}
