// Opening the list of currencies beside a list view with a delegate and the same texts, and beside the bare limit.
#include "bench/BarePainting.h"
#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "bench/ListScreen.h"
#include "bench/Opening.h"
#include "bench/ScreenTable.h"
#include "bench/Stage.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleSelectDlg.h"
#include "toolkit/ZSkinService.h"
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

    QString title() const { return dialog()->header(); }

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
        heading = title();
        currencies = texts();
        PluginList::close();
    }

    void open() override
    {
        handMade = std::make_unique<ListDialog>(heading, currencies, screen.get());
        handMade->show();
    }
    void close() override { handMade.reset(); }
    const char *fault() override
    {
        const bool isWhole = currencies.size() == choices && handMade->choices() == currencies;
        return isWhole ? nullptr : "it has not all the currencies";
    }

private:
    QString heading;
    QStringList currencies;
    std::unique_ptr<ListDialog> handMade;
};

template <typename List>
Side side(const char *label)
{
    return {label, openingSide([](QWidget *display) { return std::make_unique<List>(display); })};
}

// The title, the keys and as many currencies as the display shows.
ScreenTexts shownTexts(QWidget *display)
{
    PluginList list(display);
    list.open();
    ScreenTexts shown{list.title(), QStringLiteral("Select"), QStringLiteral("Cancel"), {}};
    const QStringList currencies = list.texts();
    constexpr int rowsShown = (ZSkinService::DisplayHeight - ZSkinService::TitleBarHeight -
                               ZSkinService::SoftkeyBarHeight + ZSkinService::RowHeight - 1) /
                              ZSkinService::RowHeight;
    for (const QString &currency : currencies.first(rowsShown))
        shown.rows.append({currency, {}});
    list.close();
    return shown;
}

Side bareLimit()
{
    return {"bare limit: texts on an image", [](benchmark::State &state) {
                useFixedHandset();
                Stage stage;
                const ScreenTexts texts = shownTexts(&stage);
                BarePainting painting;
                for (auto _ : state) {
                    const Counted counted;
                    painting.paint(texts);
                }
            }};
}

} // namespace

std::vector<Comparison> currencyListComparisons()
{
    Comparison row;
    row.name = "Opening the currency list, to the first whole paint";
    row.ours = side<PluginList>("plug-in");
    row.beside = {{side<HandMadeList>("list view and delegate"), Bar{1.1, 0.8}}, {bareLimit(), Bar{2.3, 1.7}}};
    return {row};
}

} // namespace bench
