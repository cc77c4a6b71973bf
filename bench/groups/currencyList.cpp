// Opening the list of currencies beside a stock list with the same texts in a dialog.
#include "Groups.h"
#include "Opening.h"
#include "PHONE_UI_RecentCallCostSetupView.h"
#include "StockScreen.h"
#include "ZListBox.h"
#include "ZListItem.h"
#include "ZSettingItem.h"
#include "ZSingleSelectDlg.h"

namespace bench {

namespace {

constexpr int currencyTypeRow = 7;
constexpr int choices = 194;

/// Opens its list over the setup screen, from where a user does.
class PluginList : public Opening
{
public:
    explicit PluginList(QWidget *display)
        : screen(std::make_unique<PHONE_UI_RecentCallCostSetupView>(display, nullptr))
    {
        screen->show();
    }

    void open() override
    {
        auto *list = screen->findChild<ZListBox *>();
        emit list->selected(static_cast<ZSettingItem *>(list->item(currencyTypeRow)));
    }
    void close() override { emit dialog()->rightSoftkeyClicked(); }
    const char *fault() override { return texts().size() == choices ? nullptr : "it has not all the currencies"; }

    QStringList texts() const
    {
        QStringList all;
        ZListBox *list = dialog()->getListBox();
        for (int row = 0; row < list->count(); ++row)
            all.append(list->item(row)->title());
        return all;
    }

protected:
    ZSingleSelectDlg *dialog() const { return screen->findChild<ZSingleSelectDlg *>(); }

    std::unique_ptr<PHONE_UI_RecentCallCostSetupView> screen;
};

/// Opens a dialog of stock widgets with the texts of the other over the same screen.
class HandMadeList final : public PluginList
{
public:
    HandMadeList(QWidget *display, StockDialog::Rows rowSizes)
        : PluginList(display)
        , rows(rowSizes)
    {
        PluginList::open();
        title = dialog()->header();
        currencies = texts();
        PluginList::close();
    }

    void open() override
    {
        stock = std::make_unique<StockDialog>(title, currencies, rows, screen.get());
        stock->show();
    }
    void close() override { stock.reset(); }
    const char *fault() override
    {
        return currencies.size() == choices ? nullptr : "it has not all the currencies";
    }

private:
    StockDialog::Rows rows;
    QString title;
    QStringList currencies;
    std::unique_ptr<StockDialog> stock;
};

Side handMade(const char *label, StockDialog::Rows rows)
{
    return openingSide(label, [rows](QWidget *display) { return std::make_unique<HandMadeList>(display, rows); });
}

} // namespace

std::vector<Comparison> currencyListComparisons()
{
    constexpr double halfAsLong = 0.5;
    const Side ours =
        openingSide("plug-in", [](QWidget *display) { return std::make_unique<PluginList>(display); });
    return {
        {"Opening the currency list, to the first paint", ours,
         handMade("stock list", StockDialog::Rows::AsTheyCome), halfAsLong},
        {"Opening the currency list, stock rows alike",
         ours,
         handMade("tuned stock list", StockDialog::Rows::Alike),
         {}},
    };
}

} // namespace bench
