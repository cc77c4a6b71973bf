// The screen "Data Times".
#pragma once

#include "toolkit/ZKbMainWidget.h"
#include "utility/callmeter.h"

#include <QtCore/QString>

class PHONE_UI_RecentCallMeter;
class ZListBox;
class ZMessageDlg;
class ZSettingItem;
class ZSoftKey;

/// How long the three most recent packet-data sessions and all sessions together have lasted, with a reset. Without
/// a meter nothing at all is built. The host deletes the screen when it emits closeWidget().
class PHONE_UI_RecentCallDataTimesView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallDataTimesView(QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallDataTimesView();

signals:
    void closeWidget();

private slots:
    void slotYes();
    void slotClose();
    void slotSelectedItem(ZSettingItem *item);

private:
    void initFrame();
    void loadFigures();
    void initList();
    QString getItemTitle(int row);
    QString getItemValue(int row);
    QString getSessionName(int row);
    void showNotice(const QString &text);
    void askForReset();

    ZMessageDlg *openDlg;
    ZSoftKey *softKey;
    ZListBox *listBox;
    PHONE_UI_RecentCallMeter *meter;
};
