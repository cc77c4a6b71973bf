// The screen "Call Costs".
#pragma once

#include "toolkit/ZKbMainWidget.h"
#include "utility/callmeter.h"

#include <QtCore/QString>

class PHONE_UI_RecentCallCostSetupView;
class PHONE_UI_RecentCallMeter;
class ZListBox;
class ZMessageDlg;
class ZSettingItem;
class ZSoftKey;

/// Prepaid credit, its expiry date, the last deposit and the accumulated call costs, each with its unit, and the way
/// into the cost setup. The host deletes the screen when it emits closeWidget(); the screen never closes or deletes
/// itself.
class PHONE_UI_RecentCallCostsView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallCostsView(QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallCostsView();

signals:
    void closeWidget();

private slots:
    void slotOk();
    void slotCloseWgt();
    void slotSelectedItem(ZSettingItem *item);

private:
    void initFrame();
    void initList();
    QString getItemTitle(int row);
    QString getItemValue(int row);
    QString getItemFigure(int row);
    void showDetail(int row, const QString &value);
    void openCostSetup();

    ZMessageDlg *detailDlg;
    ZListBox *listBox;
    ZSoftKey *softKey;
    PHONE_UI_RecentCallMeter *meter;
    PHONE_UI_RecentCallCostSetupView *costSetupView;
    QString currencyUnit;
};
