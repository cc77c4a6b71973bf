#include "support/ToolkitRecorder.h"

#include "support/Journal.h"

#include "message/PHONE_MsgClient.h"
#include "qt/QCopChannel.h"
#include "qt/QValueList.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZLabel.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListBoxItem.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"
#include "toolkit/ZSoftKey.h"

#include <QtCore/QUuid>

#include <type_traits>

#include <dlfcn.h>

namespace {

int rowsMade = 0;
int dialogsMade = 0;
int choicesMade = 0; // rows of choice dialogs
int labelsMade = 0;
bool choicesAreThere = true;
int depth = 0; // of recorded operations inside each other

// What an operation does inside is not the plug-in's doing, and not recorded. (Who called cannot be seen from the
// return address: a call at the end of a function may be a jump.)
struct Recorded {
    Recorded() { ++depth; }
    ~Recorded() { --depth; }
    Q_DISABLE_COPY_MOVE(Recorded)
    const bool isOutermost = depth == 0;
};

QString joined(const QValueList<QUuid> &methods)
{
    QString texts;
    for (const QUuid &method : methods)
        texts += QLatin1Char(' ') + method.toString(QUuid::WithoutBraces);
    return texts;
}

template <typename Argument>
QString shown(const Argument &argument)
{
    if constexpr (std::is_same_v<Argument, QString>)
        return argument.isNull() ? QStringLiteral("null") : QLatin1Char('"') + argument + QLatin1Char('"');
    else if constexpr (std::is_same_v<Argument, QByteArray>)
        return shown(QString::fromLatin1(argument));
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
    else if constexpr (std::is_same_v<Argument, QUuid>)
        return argument.toString(QUuid::WithoutBraces);
    else if constexpr (std::is_same_v<Argument, QValueList<QUuid>>)
        return QStringLiteral("%1 methods").arg(argument.size()) + joined(argument);
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

bool ToolkitRecorder::hasChoices()
{
    return choicesAreThere;
}

void ToolkitRecorder::takeChoicesAway()
{
    choicesAreThere = false;
}

void ToolkitRecorder::restart()
{
    choicesAreThere = true;
    rowsMade = 0;
    dialogsMade = 0;
    choicesMade = 0;
    labelsMade = 0;
}

// Declares a function that the linker knows as `SYMBOL`, the operation of a library. An object comes first as `self`;
// a constructor is the operation that builds it there.
#define KAV_STANDS_FOR(SYMBOL, RESULT, NAME, ...)                                                                 \
    extern RESULT NAME(__VA_ARGS__) asm(SYMBOL);                                                                  \
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

// --- choices, entries, notices

KAV_STANDS_FOR("_ZN16ZSingleSelectDlgC1ERK7QStringS2_P7QWidgetPKcbji", void, makeChoiceDialog,
               ZSingleSelectDlg *self, const QString &header, const QString &message, QWidget *parent,
               const char *name, bool modal, unsigned int flags, int timeout)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("ZSingleSelectDlg"), header, message, parent, name, modal, flags, timeout);
    original_makeChoiceDialog()(self, header, message, parent, name, modal, flags, timeout);
    if (call.isOutermost)
        nameAndWatch(self, QStringLiteral("dialog %1").arg(++dialogsMade));
}

KAV_STANDS_FOR("_ZN16ZSingleSelectDlg10getListBoxEv", ZListBox *, getChoices, ZSingleSelectDlg *self)
{
    const Recorded call;
    ZListBox *list = ToolkitRecorder::hasChoices() ? original_getChoices()(self) : nullptr;
    if (call.isOutermost && isKnown(self)) {
        record(of(self, "getListBox"));
        Journal::shared().nameObject(list, QStringLiteral("choices"));
    }
    return list;
}

KAV_STANDS_FOR("_ZN8ZListBox11setItemTypeE7QString", void, setItemType, ZListBox *self, QString type)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setItemType"), type);
    original_setItemType()(self, type);
}

KAV_STANDS_FOR("_ZN8ZListBox11setSelectedEib", void, setSelected, ZListBox *self, int index, bool on)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setSelected"), index, on);
    original_setSelected()(self, index, on);
}

KAV_STANDS_FOR("_ZN12ZListBoxItemC1EP8ZListBox7QString", void, makeChoice, ZListBoxItem *self, ZListBox *list,
               QString type)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("choice %1").arg(choicesMade++));
        record(QStringLiteral("ZListBoxItem"), list, type);
    }
    original_makeChoice()(self, list, type);
}

KAV_STANDS_FOR("_ZN12ZListBoxItem13appendSubItemEi7QStringS0_PK7QPixmapjNS_12ShowPriorityE", void,
               appendSubItemOfChoice, ZListBoxItem *self, int subItem, QString text, QString shortText,
               const QPixmap *pixmap, unsigned int width, ZListBoxItem::ShowPriority priority)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "appendSubItem"), subItem, text, shortText, pixmap, width, priority);
    original_appendSubItemOfChoice()(self, subItem, text, shortText, pixmap, width, priority);
}

KAV_STANDS_FOR("_ZN17ZSingleCaptureDlgC1ERK7QStringS2_NS_14CaptureDlgTypeEP7QWidgetPKcbji", void, makeEntryDialog,
               ZSingleCaptureDlg *self, const QString &header, const QString &message,
               ZSingleCaptureDlg::CaptureDlgType type, QWidget *parent, const char *name, bool modal,
               unsigned int flags, int timeout)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("ZSingleCaptureDlg"), header, message, type, parent, name, modal, flags, timeout);
    original_makeEntryDialog()(self, header, message, type, parent, name, modal, flags, timeout);
    if (call.isOutermost)
        nameAndWatch(self, QStringLiteral("dialog %1").arg(++dialogsMade));
}

KAV_STANDS_FOR("_ZN17ZSingleCaptureDlg16getMultiLineEditEv", ZMultiLineEdit *, getField, ZSingleCaptureDlg *self)
{
    const Recorded call;
    ZMultiLineEdit *field = original_getField()(self);
    if (call.isOutermost && isKnown(self)) {
        record(of(self, "getMultiLineEdit"));
        Journal::shared().nameObject(field, QStringLiteral("field"));
    }
    return field;
}

KAV_STANDS_FOR("_ZN14ZMultiLineEdit12setMaxLengthEi", void, setMaxLength, ZMultiLineEdit *self, int length)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setMaxLength"), length);
    original_setMaxLength()(self, length);
}

KAV_STANDS_FOR("_ZN12ZApplication15setInputMethodsEP7QWidgetRK5QUuidRK5QListIS2_Ei7QString", void, setInputMethods,
               QWidget *field, const QUuid &defaultMethod, const QValueList<QUuid> &allowed, int mode,
               QString hint)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("setInputMethods"), field, defaultMethod, allowed, mode, hint);
    original_setInputMethods()(field, defaultMethod, allowed, mode, hint);
}

KAV_STANDS_FOR("_ZN6ZPopup18setSoftkeyTextLeftERK7QString", void, setSoftkeyTextLeft, ZPopup *self,
               const QString &text)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setSoftkeyTextLeft"), text);
    original_setSoftkeyTextLeft()(self, text);
}

KAV_STANDS_FOR("_ZN10ZNoticeDlgC1ENS_4TypeERK7QStringS3_P7QWidgetPKcbjb", void, makeNotice, ZNoticeDlg *self,
               ZNoticeDlg::Type type, const QString &header, const QString &message, QWidget *parent,
               const char *name, bool modal, unsigned int flags, bool closable)
{
    const Recorded call;
    if (call.isOutermost)
        record(QStringLiteral("ZNoticeDlg"), type, header, message, parent, name, modal, flags, closable);
    original_makeNotice()(self, type, header, message, parent, name, modal, flags, closable);
    if (call.isOutermost)
        nameAndWatch(self, QStringLiteral("dialog %1").arg(++dialogsMade));
}

KAV_STANDS_FOR("_ZN9ZListItem10setEnabledEb", void, setEnabled, ZListItem *self, bool enable)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setEnabled"), enable);
    original_setEnabled()(self, enable);
}

// --- what the screens of the data sessions use besides

KAV_STANDS_FOR("_ZN8ZSoftKey15setButtonEnableENS_7KEY_IDXEb", void, setButtonEnable, ZSoftKey *self,
               ZSoftKey::KEY_IDX key, bool enable)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setButtonEnable"), key, enable);
    original_setButtonEnable()(self, key, enable);
}

KAV_STANDS_FOR("_ZN6ZLabelC1ERK7QStringP7QWidgetPKcjN12ZSkinService11WidgetClsIDE", void, makeLabel, ZLabel *self,
               const QString &text, QWidget *parent, const char *name, unsigned int flags,
               ZSkinService::WidgetClsID skinClass)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("label %1").arg(labelsMade++));
        record(QStringLiteral("ZLabel"), text, parent, name, flags, skinClass);
    }
    original_makeLabel()(self, text, parent, name, flags, skinClass);
}

KAV_STANDS_FOR("_ZN9ZListItem12setSeparatorERK7QStringPK7QPixmap", void, setSeparator, ZListItem *self,
               const QString &text, const QPixmap *pixmap)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "setSeparator"), text, pixmap);
    original_setSeparator()(self, text, pixmap);
}

KAV_STANDS_FOR("_ZN8ZListBox5clearEv", void, clearList, ZListBox *self)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "clear"));
    original_clearList()(self);
}

KAV_STANDS_FOR("_ZN11QCopChannelC1ERK10QByteArrayP7QObjectPKc", void, makeChannel, QCopChannel *self,
               const QCString &channel, QObject *parent, const char *name)
{
    const Recorded call;
    if (call.isOutermost) {
        Journal::shared().nameObject(self, QStringLiteral("channel"));
        record(QStringLiteral("QCopChannel"), channel, parent, name);
    }
    original_makeChannel()(self, channel, parent, name);
}

KAV_STANDS_FOR("_ZN13ZKbMainWidget5closeEb", bool, closeScreen, ZKbMainWidget *self, bool alsoDelete)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "close"), alsoDelete);
    return original_closeScreen()(self, alsoDelete);
}

KAV_STANDS_FOR("_ZN7QWidget6updateEv", void, updateWidget, QWidget *self)
{
    const Recorded call;
    if (call.isOutermost && isKnown(self))
        record(of(self, "update"));
    original_updateWidget()(self);
}
