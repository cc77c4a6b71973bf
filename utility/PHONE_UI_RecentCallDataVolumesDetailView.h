// The sub-screen "Data Volume": the volumes of one data session, or of all of them.
#pragma once

#include "toolkit/ZKbMainWidget.h"

#include <QtCore/QString>

class PHONE_UI_RecentCallMeter;
class ZListBox;
class ZMessageDlg;
class ZSettingItem;
class ZSoftKey;

/// Opened by the Data Volumes screen, which deletes it when it emits closeWgt(). The figures are read once, when the
/// screen is built.
class PHONE_UI_RecentCallDataVolumesDetailView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `index` is the session slot, 1 to 3, or 5 for all sessions; `instructTextZ` names the slot.
    PHONE_UI_RecentCallDataVolumesDetailView(QString instructTextY, QString instructTextZ, int index,
                                             QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallDataVolumesDetailView();

    QString getInstructTextY();
    QString getInstructTextZ();
    int getIndex();

signals:
    void closeWgt();

private slots:
    void slotOk();
    void slotBack();
    void slotSelectedItem(ZSettingItem *item);

private:
    void initFrame();
    void initSoftKey();
    void initFigures();
    void initList();
    QString getItemTitle(int row);
    QString getItemValue(const QString &word);
    QString getNoticeText(const QString &word);
    QString askMeter(const QString &word);

    ZMessageDlg *openDlg;
    ZListBox *listBox;
    ZSoftKey *softKey;
    PHONE_UI_RecentCallMeter *meter; // kept when the screen goes
    QString instructTextY;
    QString instructTextZ;
    int index;
    QString sentText;
    QString receivedText;
    QString sumText;
};
