// The sub-screen "Call-Cost Setup".
#pragma once

#include "toolkit/ZKbMainWidget.h"

#include <QtCore/QString>

class PHONE_UI_RecentCallMeter;
class ZListBox;
class ZNoticeDlg;
class ZPopup;
class ZSettingItem;
class ZSingleCaptureDlg;
class ZSingleSelectDlg;
class ZSoftKey;

/// The SIM's advice-of-charge settings: credit limit, charge type, currency, price per unit, and the cost resets. Edits
/// are collected and written in one fixed order; what cannot be written stays collected for the next try. Opened by
/// the Call Costs screen, which deletes it when it emits closeWgt(); edits are written however the screen goes away.
class PHONE_UI_RecentCallCostSetupView : public ZKbMainWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    PHONE_UI_RecentCallCostSetupView(QWidget *parent, const char *name);
    virtual ~PHONE_UI_RecentCallCostSetupView();

signals:
    void closeWgt();

private slots:
    void slotBack();
    void slotSave();
    void slotClose();
    void slotCancel();
    void slotSelect();
    void slotSingleSelect();
    void slotSelectedItem(ZSettingItem *item);

private:
    void initFrame();
    void initAccessRule();
    void initList();
    void appendRows();
    void disableRows(int first, int last, unsigned char rule);
    QString makeCategoryString(int type);
    QString makeCategoryItem(int type);

    void showData();
    void activeLimit(bool on);
    void activeCurrency(int type);
    void setRowValue(int row, const QString &value);
    void setRowEnabled(int row, bool enable);

    unsigned char guardOf(int row) const;
    void openEditor(int row);
    void resetCosts(int row);

    bool showSelectDlg(const QString &title);
    bool showCaptureDlg(const QString &title);
    void fillSelectList();
    void fillCurrencyList();
    void appendChoice(int subItem, const QString &text);
    void prepareCaptureField();
    void storeEntry(const QString &entry);

    void clearChanges();
    void updateCallCostSetup();

    int curIndex;
    bool isSaved;
    ZPopup *curDialog;
    ZNoticeDlg *noticeDlg;
    ZSoftKey *softKey;
    ZListBox *listBox;
    ZSingleCaptureDlg *captureDlg;
    ZSingleSelectDlg *selectDlg;
    int curCallSetType;
    ZListBox *selectListBox;
    PHONE_UI_RecentCallMeter *meter;
    QString preMeterMax;
    bool preCMMEnable;
    unsigned char preChargeType;
    QString preCurrencyTable;
    QString prePricePerUnit;
    QString unitText;
    bool preMeterMaxChanged;
    bool preCMMEnableChanged;
    bool preChargeTypeChanged;
    bool preCurrencyTableChanged;
    bool prePricePerUnitChanged;
    unsigned char accessRuleACM;
    unsigned char accessRuleACMMAX;
    unsigned char accessRulePUCT;
};
