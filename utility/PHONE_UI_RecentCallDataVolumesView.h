// The screen "Data Volumes".
#pragma once

#include "qt/QCString.h"
#include "toolkit/ZKbMainWidget.h"
#include "utility/callmeter.h"

#include <QtCore/QString>

class PHONE_UI_RecentCallDataVolumesDetailView;
class PHONE_UI_RecentCallMeter;
class QCopChannel;
class ZListBox;
class ZMessageDlg;
class ZSettingItem;
class ZSoftKey;

/// The three most recent packet-data sessions and the total, each leading to its volumes, with a reset. Rebuilds
/// itself when the phone tells that a figure has changed. The host deletes the screen when it emits closeWidget().
class PHONE_UI_RecentCallDataVolumesView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallDataVolumesView(QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallDataVolumesView();

signals:
    void closeWidget();

private slots:
    void slotNo();
    void slotYes();
    void slotCloseWgt();
    void slotSelectedItem(ZSettingItem *item);
    void slotUpdateChildWidgets(const QCString &message, const QByteArray &block);

private:
    void initFrame();
    void initChannel();
    void initMeter();
    void initList();
    QString getItemTitle(int row);
    QString getSessionName(int row);
    void openDetail(const QString &first, const QString &second, int index);
    void askForReset();

    ZMessageDlg *openDlg;
    ZSoftKey *softKey;
    ZListBox *listBox;
    PHONE_UI_RecentCallMeter *meter;
    PHONE_UI_RecentCallDataVolumesDetailView *detailView;
    QCopChannel *channel;
};
