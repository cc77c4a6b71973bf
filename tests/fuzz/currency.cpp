// What is taken as the code of a shown name of a currency: the three letters before its last. A translator may have
// written anything there. This program's engine stands in the place of the real one.
#include "fuzz/Fuzz.h"

#include "utility/PHONE_UI_RecentCallCostSetupView.h"

#include "callsetup/PHONE_ENG_Setup.h"
#include "handset/Handset.h"
#include "log/aplog.h"
#include "support/PrivateAccess.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListBoxItem.h"

#include <QtWidgets/QApplication>

#include <memory>

using View = PHONE_UI_RecentCallCostSetupView;
KAV_EXPOSE(SelectListBox, &View::selectListBox);
KAV_EXPOSE(SlotSelect, &View::slotSelect);

namespace {

QString written;

QString cutOf(const QString &shown)
{
    QString cut;
    for (qsizetype i = std::max<qsizetype>(shown.size() - 4, 0); i < shown.size() && cut.size() < 3; ++i)
        cut += shown[i];
    return cut;
}

std::unique_ptr<View> viewWithoutHandset()
{
    handset::install(nullptr);
    return std::make_unique<View>(nullptr, "setup");
}

} // namespace

int PHONE_ENG_Setup::setPriceUnitCurrency(QString const &, QString const &currency)
{
    written = currency;
    return 0;
}

int PHONE_ENG_Setup::getPriceUnitCurrency(QString &price, QString &currency)
{
    price = QStringLiteral("0.10");
    currency = written;
    return 0;
}

void tryBytes(QByteArrayView bytes)
{
    static int count = 1;
    static char program[] = "currency";
    static char *arguments[] = {program, nullptr};
    static const QApplication application(count, arguments);
    static FILE *const nowhere = std::fopen("/dev/null", "w");
    libaplog_to_module_ptr = nowhere;
    static const auto view = viewWithoutHandset();
    static ZListBox list(QStringLiteral("%M"), nullptr, 0, ZSkinService::SettingListClass);

    Taker taker(bytes);
    const bool isUtf16 = taker.byte() % 2 == 0;
    const QByteArray rest = taker.all().toByteArray();
    const QString shown = isUtf16 ? QString(reinterpret_cast<const QChar *>(rest.constData()), rest.size() / 2)
                                  : QString::fromUtf8(rest);
    list.clear();
    for (const QString &text : {QStringLiteral("Custom"), shown}) {
        auto *const row = new ZListBoxItem(&list, QString());
        row->appendSubItem(0, text, QString(), nullptr, 100, ZListBoxItem::HighShowPriority);
        list.insertItem(row, -1, true);
    }
    list.setSelected(1, true);
    (*view).*exposed(SelectListBox()) = &list;
    written = QStringLiteral("none");
    ((*view).*exposed(SlotSelect()))();
    REQUIRE(written == cutOf(shown));
}
