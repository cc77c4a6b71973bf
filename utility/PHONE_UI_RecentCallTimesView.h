// The screen "Call Times".
#pragma once

#include "toolkit/ZKbMainWidget.h"
#include "utility/callmeter.h"

#include <QtCore/QString>

class PHONE_MsgClient;
class PHONE_UI_RecentCallMeter;
class ZListBox;
class ZMessageDlg;
class ZSettingItem;
class ZSoftKey;

/// Six call timers with their durations; four of them can be reset after a question. The host deletes the screen
/// when it emits closeWidget(); the screen never closes or deletes itself.
class PHONE_UI_RecentCallTimesView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallTimesView(QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallTimesView();

signals:
    void closeWidget();

private slots:
    void slotNo();
    void slotYes();
    void slotSelectedItem(ZSettingItem *item);

private:
    void initFrame();
    void initList();
    QString getItemTitle(int row);
    QString getItemValue(int row);
    QString formatDuration(quint32 seconds);
    void updateDataCallTime();
    void resetDataCallTimer();
    void refuseReset();
    void rewriteRow(int row);
    void refreshAfterReset();

    int resetRow;
    ZMessageDlg *resetDlg;
    ZSoftKey *softKey;
    ZListBox *listBox;
    PHONE_UI_RecentCallMeter *meter;
    ZMessageDlg *inCallDlg; // has no parent: deleted by the destructor
    QString dataCallTimeText;
    quint32 dataCallSeconds;
    PHONE_MsgClient *msgClient;
};
