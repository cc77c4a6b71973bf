// Opening the list of currencies beside a list view with a delegate and the same texts.
#include "bench/Groups.h"
#include "bench/ListScreen.h"
#include "bench/Opening.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleSelectDlg.h"
#include "utility/PHONE_UI_RecentCallCostSetupView.h"

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

/// Opens a dialog of a list view with the texts of the other over the same screen.
class HandMadeList final : public PluginList
{
public:
    explicit HandMadeList(QWidget *display)
        : PluginList(display)
    {
        PluginList::open();
        title = dialog()->header();
        currencies = texts();
        PluginList::close();
    }

    void open() override
    {
        handMade = std::make_unique<ListDialog>(title, currencies, screen.get());
        handMade->show();
    }
    void close() override { handMade.reset(); }
    const char *fault() override
    {
        const bool isWhole = currencies.size() == choices && handMade->choices() == currencies;
        return isWhole ? nullptr : "it has not all the currencies";
    }

private:
    QString title;
    QStringList currencies;
    std::unique_ptr<ListDialog> handMade;
};

template <typename List>
Side side(const char *label)
{
    return {label, openingSide([](QWidget *display) { return std::make_unique<List>(display); })};
}

} // namespace

std::vector<Comparison> currencyListComparisons()
{
    Comparison row;
    row.name = "Opening the currency list, to the first whole paint";
    row.ours = side<PluginList>("plug-in");
    row.beside = {{side<HandMadeList>("list view and delegate"), Bar{1.1, 0.8}}};
    return {row};
}

} // namespace bench
