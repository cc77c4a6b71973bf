#include "utility/CostSetupModel.h"

#include "utility/ListedCurrencies.h"

#include <QtCore/Qt>

#include <algorithm>
#include <charconv>

using Mood = HandsetMood;

namespace {

struct RowFacts {
    const char *title;
    const char *firstValue;
};
constexpr RowFacts rowFacts[] = {
    {"Reset All", ""},
    {"Reset All Call Costs", ""},
    {"Reset Dialed Call Costs", ""},
    {"Reset Answered Call Costs", ""},
    {"Credit Limit", "On"},
    {"Adjust Credit Limit", ""},
    {"Currency", "On"},
    {"Currency Type", ""},
    {"Cost Per Minute", ""},
};

struct ModelledReset {
    const char *operation;
    const char *message;
};
constexpr ModelledReset modelledResets[] = {
    {"CallLog::resetAll", "All costs have been reset to 0.00 units."},
    {"CallLog::resetAllCallsCost", "All call costs have been reset to 0.00 units."},
    {"CallLog::resetDialedCallsCost", "Dialed call costs have been reset to 0.00 units."},
    {"CallLog::resetAnsweredCallsCost", "Answered call costs have been reset to 0.00 units."},
};

constexpr const char *charactersOfKeys[] = {" 0",   "1",    "ABC2",  "DEF3", "GHI4",
                                            "JKL5", "MNO6", "PQRS7", "TUV8", "WXYZ9"};

constexpr int noticeTime = 5000;
constexpr int codeLength = 3;

bool isLeft(int key)
{
    return key == Qt::Key_Context1 || key == Qt::Key_Select;
}

bool isRight(int key)
{
    return key == Qt::Key_Context2 || key == Qt::Key_Clear;
}

bool isMove(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down;
}

bool isDigit(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

int moved(int row, int key, int count)
{
    return (row + (key == Qt::Key_Down ? 1 : count - 1)) % count;
}

QChar typed(int key)
{
    return QChar(char16_t(key)).toLower();
}

// As single precision reads it, a thousandth itself being enough.
bool isBelowAThousandth(const QString &text)
{
    const QByteArray trimmed = text.trimmed().toLatin1();
    float number = 0;
    const char *end = trimmed.constData() + trimmed.size();
    const auto [stop, error] = std::from_chars(trimmed.constData(), end, number);
    return !trimmed.isEmpty() && error == std::errc() && stop == end && double(number) < 0.001;
}

QString codeOf(const QString &name)
{
    const qsizetype last = std::min<qsizetype>(name.size(), 4);
    return name.mid(name.size() - last, 3);
}

} // namespace

CostSetupModel::CostSetupModel(ExpectedHandset &expected)
    : handset(expected)
{
    ruleOfCosts = ruleOf(61);
    ruleOfLimit = ruleOf(59);
    ruleOfPrice = ruleOf(64);
    for (size_t row = 0; row < rows.size(); ++row)
        rows[row] = {rowFacts[row].title, rowFacts[row].firstValue};
    disable(0, 3, ruleOfCosts);
    disable(4, 5, ruleOfLimit);
    disable(6, 8, ruleOfPrice);
    refresh();
    if ((ruleOfLimit == 6 && rows[5].isEnabled) || (ruleOfPrice == 6 && rows[7].isEnabled))
        handset.happened("a row that must not be updated comes back enabled");
}

// --- the handset

int CostSetupModel::call(const char *operation, const QString &arguments)
{
    const QString name = QString::fromLatin1(operation);
    handset.calls.append(arguments.isNull() ? name : name + QLatin1Char('(') + arguments + QLatin1Char(')'));
    const int status = handset.mood.statusOf(operation);
    if (status != 0)
        handset.happened(QByteArray(operation).append(" fails").constData());
    return status;
}

quint8 CostSetupModel::ruleOf(int file)
{
    return call("AdviceOfCharge::updateRule", QString::number(file)) == 0 ? handset.mood.rules.value(file) : 0;
}

void CostSetupModel::disable(int first, int last, quint8 rule)
{
    for (int row = first; row <= last && rule == 6; ++row)
        rows[size_t(row)].isEnabled = false;
}

QString CostSetupModel::askUnit()
{
    if (call("AdviceOfCharge::chargeType") != 0)
        return QString();
    if (handset.stored.chargeType == 0)
        return QStringLiteral("units");
    if (handset.stored.chargeType != 1 || call("AdviceOfCharge::priceAndCurrency") != 0)
        return QString();
    return handset.stored.currency;
}

void CostSetupModel::refresh()
{
    const QString behind = QLatin1Char(' ') + askUnit();
    if (call("AdviceOfCharge::meterMaximum") != 0)
        return;
    edited.limit = handset.stored.limit;
    edited.limitIsOn = handset.stored.limitIsOn;
    showLimit();
    rows[5].value = edited.limit + behind;
    if (call("AdviceOfCharge::chargeType") != 0)
        return;
    edited.chargeType = handset.stored.chargeType;
    showChargeType();
    if (call("AdviceOfCharge::priceAndCurrency") != 0)
        return;
    edited.price = handset.stored.price;
    edited.currency = handset.stored.currency;
    if (edited.chargeType != 1)
        rows[7].value = QStringLiteral("units");
    else if (!edited.currency.isEmpty())
        rows[7].value = edited.currency;
    rows[8].value = edited.price + behind;
}

void CostSetupModel::showLimit()
{
    rows[4].value = edited.limitIsOn ? QStringLiteral("On") : QStringLiteral("Off");
    rows[5].isEnabled = edited.limitIsOn;
}

void CostSetupModel::showChargeType()
{
    if (edited.chargeType > 1)
        return;
    rows[6].value = edited.chargeType == 1 ? QStringLiteral("On") : QStringLiteral("Off");
    rows[7].isEnabled = rows[8].isEnabled = edited.chargeType == 1;
}

bool CostSetupModel::writeLimit()
{
    if (changes.limit) {
        if (changes.limitIsOn && !edited.limitIsOn)
            handset.happened("a new limit drops the switched-off one");
        if (call("AdviceOfCharge::setMeterMaximum", edited.limit) != 0)
            return false;
        handset.stored.limit = edited.limit;
        handset.stored.limitIsOn = true;
    } else if (changes.limitIsOn && !edited.limitIsOn) {
        if (call("AdviceOfCharge::disableMeterMaximum") != 0)
            return false;
        handset.stored.limitIsOn = false;
    }
    return true;
}

void CostSetupModel::write()
{
    if (!writeLimit())
        return;
    if (changes.chargeType) {
        if (call("AdviceOfCharge::setChargeType", QString::number(edited.chargeType)) != 0)
            return;
        handset.stored.chargeType = edited.chargeType;
    }
    if (changes.price || changes.currency) {
        if (call("AdviceOfCharge::setPriceAndCurrency", edited.price + QLatin1String(", ") + edited.currency) != 0)
            return;
        handset.stored.price = edited.price;
        handset.stored.currency = edited.currency;
    }
    changes = {};
}

// --- keys

void CostSetupModel::press(int key)
{
    Popup *popup = visible();
    if (!popup) {
        pressOnScreen(key);
        return;
    }
    switch (popup->kind) {
    case Kind::Notice:
        pressOnNotice(*popup, key);
        break;
    case Kind::Choice:
        pressOnChoice(*popup, key);
        break;
    case Kind::Entry:
        pressOnEntry(*popup, key);
        break;
    }
}

void CostSetupModel::pressOnScreen(int key)
{
    if (isMove(key))
        bar = moved(bar, key, int(rows.size()));
    else if (key == Qt::Key_Select)
        select(bar);
    else if (isRight(key))
        goBack();
}

// Its right softkey has no caption.
void CostSetupModel::pressOnNotice(Popup &popup, int key)
{
    popup.isVisible = !isLeft(key) && key != Qt::Key_Clear;
}

void CostSetupModel::pressOnChoice(Popup &popup, int key)
{
    if (isMove(key)) {
        popup.row = moved(popup.row, key, int(choices(popup.editor).size()));
    } else if (isLeft(key)) {
        popup.isVisible = false;
        choose(popup);
    } else if (isRight(key)) {
        handset.happened("a choice is cancelled");
        closeCurrent();
    }
}

void CostSetupModel::pressOnEntry(Popup &popup, int key)
{
    if (!isDigit(key) || key != popup.tapKey)
        popup.tapKey = 0;
    if (isLeft(key)) {
        save(popup);
    } else if (isRight(key) && popup.editor == CustomEntry) {
        handset.happened("Cancel in the custom code leads back to the list");
        popup.isVisible = false;
        openEditor(List, "Currency Type");
    } else if (isRight(key)) {
        handset.happened("an entry is cancelled");
        closeCurrent();
    } else if (key == Qt::Key_NumberSign) {
        popup.text.chop(1);
    } else if (!isMove(key) && popup.editor == CustomEntry) {
        typeCode(popup, key);
    } else if (!isMove(key)) {
        typeNumber(popup, key);
    }
}

void CostSetupModel::typeNumber(Popup &popup, int key)
{
    if (key != Qt::Key_Asterisk)
        popup.text += typed(key);
    else if (!popup.text.contains(QLatin1Char('.')))
        popup.text += QLatin1Char('.');
}

void CostSetupModel::typeCode(Popup &popup, int key)
{
    if (key == Qt::Key_Asterisk)
        popup.isUpperCase = !popup.isUpperCase;
    else if (isDigit(key))
        tap(popup, key);
    else if (popup.text.size() < codeLength)
        popup.text += typed(key);
}

void CostSetupModel::tap(Popup &popup, int key)
{
    const QString characters = QString::fromLatin1(charactersOfKeys[key - Qt::Key_0]);
    const bool isAnother = popup.tapKey == key && characters.size() > 1;
    popup.turn = isAnother ? int((popup.turn + 1) % characters.size()) : 0;
    const QChar character = characters.at(popup.turn);
    popup.tapKey = key;
    if (isAnother)
        popup.text.chop(1);
    if (popup.text.size() < codeLength)
        popup.text += popup.isUpperCase ? character : character.toLower();
    else
        popup.tapKey = 0; // there was no room
}

// --- the screen

void CostSetupModel::goBack()
{
    if (changes.any())
        handset.happened("Back with edits to write");
    isSaved = true;
    write();
    ++closings;
}

void CostSetupModel::destroy()
{
    handset.happened(isSaved ? "the screen goes after Back" : "the screen goes without Back");
    if (!isSaved && changes.any())
        handset.happened("the screen goes with edits to write");
    if (!timers.isEmpty())
        handset.happened("the screen goes before its timer");
    if (!isSaved)
        write();
}

void CostSetupModel::select(int row)
{
    if (!rows[size_t(row)].isEnabled) {
        handset.happened("a disabled row is selected");
        return;
    }
    if (!mayOpen(row))
        return;
    switch (row) {
    case 4:
        openEditor(LimitChoice, "Credit Limit");
        break;
    case 5:
        openEditor(LimitEntry, "Adjust Credit Limit");
        break;
    case 6:
        openEditor(CurrencyChoice, "Currency");
        break;
    case 7:
        openEditor(List, "Choose Type");
        break;
    case 8:
        openEditor(PriceEntry, "Cost Per Minute");
        break;
    default:
        reset(row);
    }
}

bool CostSetupModel::mayOpen(int row)
{
    handset.calls.append(QStringLiteral("SimSecurity::pinStatus(1)"));
    lastIndex = row;
    const quint8 rule = row < 4 ? ruleOfCosts : row < 6 ? ruleOfLimit : ruleOfPrice;
    const bool isEntered = handset.mood.statusOf("SimSecurity::pinStatus") == 0 && handset.mood.pinStatus == 3;
    if (rule != 4 || isEntered)
        return true;
    const bool accepted = pinIsAccepted();
    handset.happened(accepted ? "PIN2 is accepted" : "PIN2 is not accepted");
    return accepted;
}

bool CostSetupModel::pinIsAccepted()
{
    const PinAnswer &answer = handset.nextPin;
    advance(answer.waits);
    if (answer.isScripted) {
        handset.calls.append(QStringLiteral("SETUP_SECURITY_Util::verifyPin(1, 1)"));
        return answer.result != 0 && answer.error == 0;
    }
    for (const QByteArray &digits : answer.attempts) {
        handset.calls.append(QStringLiteral("SimSecurity::pinStatus(1)"));
        if (handset.mood.statusOf("SimSecurity::pinStatus") != 0)
            return false;
        handset.calls.append(QStringLiteral("SimSecurity::triesLeft(1)"));
        if (handset.mood.pinStatus == 2 || handset.mood.triesLeft == 0 || digits.isEmpty())
            return false;
        handset.calls.append(QStringLiteral("SimSecurity::verifyPin(1, %1)").arg(QString::fromLatin1(digits)));
        if (handset.mood.statusOf("SimSecurity::verifyPin") != 0)
            return false;
        if (digits == "1234")
            return true;
    }
    return false;
}

void CostSetupModel::reset(int row)
{
    handset.happened("costs are reset");
    handset.calls.append(QString::fromLatin1(modelledResets[row].operation));
    open({.kind = Kind::Notice, .header = QStringLiteral("Reset Calls"), .text = modelledResets[row].message});
    timers.append(noticeTime);
}

CostSetupModel::Popup *CostSetupModel::visible()
{
    const auto seen =
        std::find_if(popups.cbegin(), popups.cend(), [](const auto &popup) { return popup->isVisible; });
    return seen == popups.cend() ? nullptr : seen->get();
}

// What was there before lives on, with nothing to close it but the screen's end.
CostSetupModel::Popup *CostSetupModel::open(Popup popup)
{
    if (current)
        handset.happened("a popup is left behind");
    current = popups.emplace_back(std::make_unique<Popup>(std::move(popup))).get();
    return current;
}

void CostSetupModel::openEditor(int editor, const char *header)
{
    const bool isChoice = editor == LimitChoice || editor == CurrencyChoice || editor == List;
    lastEditor = editor;
    open({.kind = isChoice ? Kind::Choice : Kind::Entry,
          .header = QString::fromLatin1(header),
          .text = QString(),
          .editor = editor});
}

void CostSetupModel::closeCurrent()
{
    popups.erase(
        std::remove_if(popups.begin(), popups.end(), [this](const auto &popup) { return popup.get() == current; }),
        popups.end());
    current = nullptr;
}

void CostSetupModel::advance(int milliseconds)
{
    for (int &left : timers)
        left -= milliseconds;
    while (!timers.isEmpty() && timers.first() <= 0) {
        timers.removeFirst();
        if (!current)
            handset.happened("the timer finds nothing to close");
        else if (current->kind != Kind::Notice)
            handset.happened(current->isVisible ? "the timer closes an open editor"
                                                : "the timer takes away a hidden editor");
        else
            handset.happened("the timer closes a notice");
        closeCurrent();
    }
}

// --- editors

QStringList CostSetupModel::choices(int editor)
{
    static const QStringList names = [] {
        QStringList all = {QStringLiteral("Custom")};
        for (const ListedCurrency &currency : listedCurrencies)
            all.append(QString::fromUtf8(currency.name));
        return all;
    }();
    return editor == List ? names : QStringList({QStringLiteral("On"), QStringLiteral("Off")});
}

void CostSetupModel::choose(const Popup &popup)
{
    if (popup.editor == LimitChoice) {
        handset.happened(popup.row == 0 ? "the limit is switched on" : "the limit is switched off");
        edited.limitIsOn = popup.row == 0;
        changes.limitIsOn = true;
        showLimit();
        return;
    }
    if (popup.editor == List && popup.row == 0) {
        openEditor(CustomEntry, "Currency Type");
        return;
    }
    if (popup.editor == CurrencyChoice) {
        handset.happened("the currency is switched");
        edited.chargeType = popup.row == 0 ? 1 : 0;
        changes.chargeType = true;
        showChargeType();
    } else {
        const QString name = choices(List).at(popup.row);
        handset.happened("a currency is chosen");
        if (name.endsWith(QLatin1Char(' ')))
            handset.happened("a currency whose name ends in a blank is chosen");
        edited.currency = codeOf(name);
        changes.currency = true;
    }
    write();
    refresh();
}

void CostSetupModel::save(const Popup &popup)
{
    if (popup.text.isEmpty()) {
        handset.happened("an empty entry is shown again");
        return;
    }
    const bool isSmall = isBelowAThousandth(popup.text);
    const QString entry = isSmall ? QStringLiteral("0.000") : popup.text;
    const int editor = popup.editor;
    if (isSmall)
        handset.happened("a small number becomes 0.000");
    if (editor == LimitEntry) {
        handset.happened("a limit is saved");
        edited.limit = entry;
        changes.limit = true;
    } else if (editor == PriceEntry) {
        handset.happened("a price is saved");
        edited.price = entry;
        changes.price = true;
    } else {
        handset.happened("a custom code is saved");
        edited.currency = entry;
        changes.currency = true;
    }
    closeCurrent();
    write();
    refresh();
}
