#include "host/panel/SimFilesSection.h"

#include "host/StatusText.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>

#include <algorithm>

namespace host {

using handset::AdviceOfCharge;
using Card = handset::charging::SimCard;

namespace {

constexpr StatusMeaning simFileMeaning{QT_TRANSLATE_NOOP("host::StatusText", "there is no such rule"),
                                       QT_TRANSLATE_NOOP("host::StatusText", "not possible now"),
                                       QT_TRANSLATE_NOOP("host::StatusText", "not allowed")};

QString hex(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

QString unitsOf(const QByteArray &record)
{
    qint64 units = 0;
    for (const char byte : record)
        units = units * 256 + static_cast<quint8>(byte);
    return SimFilesSection::tr("%1  =  %2 units").arg(hex(record)).arg(units);
}

// The newest record first, as the SIM has them.
QString meterText(const Card &card)
{
    constexpr qsizetype recordSize = 3;
    const QByteArray bytes = card.fileBytes(AdviceOfCharge::AcmFile);
    QStringList records;
    for (qsizetype at = 0; at < bytes.size(); at += recordSize)
        records << unitsOf(bytes.mid(at, recordSize));
    records.front() += SimFilesSection::tr("  (newest)");
    return records.join(u'\n');
}

QString maximumText(const Card &card)
{
    const QByteArray bytes = card.fileBytes(AdviceOfCharge::AcmMaxFile);
    return card.acmMax() == 0 ? SimFilesSection::tr("%1  =  no limit").arg(hex(bytes)) : unitsOf(bytes);
}

QString priceText(const Card &card)
{
    const handset::charging::Puct puct = card.puct();
    const QString currency = puct.currency.isEmpty() ? SimFilesSection::tr("no currency") : puct.currency;
    return SimFilesSection::tr("%1  =  %2, %3 a unit")
        .arg(hex(card.fileBytes(AdviceOfCharge::PuctFile)), currency, puct.price.text());
}

struct FileRow {
    quint8 file;
    const char *name;
    const char *what;
    QString (*text)(const Card &card);
};

constexpr std::array<FileRow, 3> files{{
    {AdviceOfCharge::AcmFile, "EF_ACM", QT_TRANSLATE_NOOP("host::SimFilesSection", "call meter"), &meterText},
    {AdviceOfCharge::AcmMaxFile, "EF_ACMmax", QT_TRANSLATE_NOOP("host::SimFilesSection", "maximum"), &maximumText},
    {AdviceOfCharge::PuctFile, "EF_PUCT", QT_TRANSLATE_NOOP("host::SimFilesSection", "price"), &priceText},
}};

struct RuleChoice {
    quint8 rule;
    const char *text;
};

constexpr std::array<RuleChoice, 3> rules{{
    {AdviceOfCharge::FreeUpdate, QT_TRANSLATE_NOOP("host::SimFilesSection", "freely")},
    {AdviceOfCharge::UpdateUnderPin2, QT_TRANSLATE_NOOP("host::SimFilesSection", "with PIN2")},
    {AdviceOfCharge::NoUpdate, QT_TRANSLATE_NOOP("host::SimFilesSection", "never")},
}};

// Any number that is no rule lets anybody write.
int choiceOf(quint8 rule)
{
    const auto isIt = [rule](const RuleChoice &choice) { return choice.rule == rule; };
    const auto *const found = std::find_if(rules.begin(), rules.end(), isIt);
    return found == rules.end() ? 0 : static_cast<int>(found - rules.begin());
}

} // namespace

SimFilesSection::SimFilesSection(Line &drivenLine)
    : PanelSection(tr("Files of the SIM card"))
    , line(drivenLine)
    , failure(makeAnnouncement("sim failure", tr("Why the SIM card was not changed")))
{
    QStringList choices;
    for (const RuleChoice &rule : rules)
        choices << tr("written: %1").arg(tr(rule.text));
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString name = QString::fromLatin1(files[i].name);
        rows[i].rule = makeChoice(files[i].name, tr("Who may write %1").arg(name), choices);
        rows[i].content = makeValue(qPrintable(name + QStringLiteral(" content")), name);
        const int row = static_cast<int>(i) * 2;
        grid->addWidget(new QLabel(QStringLiteral("%1, %2").arg(name, tr(files[i].what))), row, 0);
        grid->addWidget(rows[i].rule, row, 1);
        grid->addWidget(rows[i].content, row + 1, 0, 1, 2);
        connect(rows[i].rule, &QComboBox::activated, this, [this, i](int choice) { setRule(i, choice); });
    }
    grid->addWidget(failure, static_cast<int>(rows.size()) * 2, 0, 1, 2);
}

void SimFilesSection::setRule(std::size_t row, int choice)
{
    const quint8 rule = rules[static_cast<std::size_t>(choice)].rule;
    failure->say(
        refusalText(line.simulatedHandset()->simCard().setUpdateRule(files[row].file, rule), simFileMeaning));
    refresh();
}

void SimFilesSection::refresh()
{
    setEnabled(line.simulatedHandset() != nullptr);
    if (!isEnabled())
        return;
    const Card &card = line.simulatedHandset()->simCard().card();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        quint8 rule = AdviceOfCharge::FreeUpdate;
        rows[i].content->setText(files[i].text(card));
        if (card.updateRule(files[i].file, rule) == handset::Success)
            rows[i].rule->setCurrentIndex(choiceOf(rule));
    }
}

} // namespace host
