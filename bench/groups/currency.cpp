// The display text of a currency code beside one look-up in the translation catalogue, which is what it comes down to.
#include "FixedTelephone.h"
#include "Groups.h"
#include "PHONE_UI_RecentCallMeter.h"
#include "aplog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QTranslator>

#include <array>
#include <cstdio>

namespace bench {

namespace {

constexpr auto context = "PHONE_UI_RecentCallMeter";

struct Code {
    const char *which;
    const char *code;
    const char *key; ///< in the catalogue
};

// An unknown code is not in the catalogue; it is held against the look-up of a known one.
constexpr std::array codes{
    Code{"the first code", "AED", "TXT_RID_LIST_A_AED"},
    Code{"the last code", "ZWD", "TXT_RID_LIST_A_ZWD"},
    Code{"an unknown code", "XXX", "TXT_RID_LIST_A_ZWD"},
};

/// A catalogue of about the size of the application's. It is in use for as long as it lives.
class Catalogue final : public QTranslator
{
public:
    Catalogue()
    {
        constexpr int others = 364;
        for (int i = 0; i < others; ++i)
            texts.insert("TXT_RID_LIST_A_" + QByteArray::number(i), QString::number(i));
        for (const Code &code : codes)
            texts.insert(code.key, QString::fromLatin1(code.code));
        QCoreApplication::installTranslator(this);
    }
    ~Catalogue() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *key, const char *, int) const override
    {
        return texts.value(QByteArray::fromRawData(key, static_cast<qsizetype>(qstrlen(key))));
    }

private:
    QHash<QByteArray, QString> texts;
};

QString lookUp(const Code &code)
{
    std::fprintf(libaplog_to_module_ptr, "\n%s, %s, %d: \"PHONE_UI_RecentCallMeter::%s string=%s.\\n\"\n",
                 "utility/PHONE_UI_RecentCallMeter", "TranslateCurrency", 1, "TranslateCurrency", code.code);
    return QCoreApplication::translate(context, code.key, code.code);
}

Side oursFor(const Code &code)
{
    return {"meter", [code](benchmark::State &state) {
                useFixedTelephone();
                const Catalogue catalogue;
                PHONE_UI_RecentCallMeter meter;
                const QString text = QString::fromLatin1(code.code);
                for (auto _ : state)
                    benchmark::DoNotOptimize(meter.TranslateCurrency(text));
            }};
}

Side lookUpOf(const Code &code)
{
    return {"one look-up", [code](benchmark::State &state) {
                useFixedTelephone();
                const Catalogue catalogue;
                for (auto _ : state)
                    benchmark::DoNotOptimize(lookUp(code));
            }};
}

} // namespace

std::vector<Comparison> currencyComparisons()
{
    constexpr double hardlySlower = 1.2;
    std::vector<Comparison> comparisons;
    comparisons.reserve(codes.size());
    for (const Code &code : codes)
        comparisons.push_back({std::string("Currency text, with its trace: ") + code.which, oursFor(code),
                               lookUpOf(code), hardlySlower});
    return comparisons;
}

} // namespace bench
