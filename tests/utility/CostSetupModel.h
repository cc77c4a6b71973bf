// What a person expects of the Call-Cost Setup screen: a second telling of it, from the keys alone, beside which a
// walk over the real one is held.
#pragma once

#include "handset/Operations.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>
#include <memory>
#include <string_view>
#include <vector>

/// The settings of the advice of charge.
struct ChargeSettings {
    QString limit;
    bool limitIsOn = false;
    quint8 chargeType = 0;
    QString price;
    QString currency;
};

/// How the handset answers now. A status of 0 is success.
struct HandsetMood {
    std::array<int, handset::operationNames.size()> status = {};
    int &statusOf(std::string_view operation)
    {
        return status.at(static_cast<std::size_t>(handset::operationIndex(operation)));
    }
    QMap<int, quint8> rules = {{61, 0}, {59, 0}, {64, 0}}; ///< update rule by file
    quint32 pinStatus = 3;
    int triesLeft = 3;
};

/// What the user does when PIN2 is asked for.
struct PinAnswer {
    bool isScripted = false; ///< the whole entry is replaced by the next two numbers
    int result = 0;
    int error = 0;
    /// Otherwise: the digits of each attempt, an empty one being a cancel. "1234" is right.
    QList<QByteArray> attempts;
    int waits = 0; ///< milliseconds that pass while it is asked
};

/// The handset as the model takes it to be, and the calls that it is to have got.
struct ExpectedHandset {
    ChargeSettings stored;
    HandsetMood mood;
    PinAnswer nextPin;
    QStringList calls;
    QMap<QString, int> counts; ///< how often something worth mentioning happened

    void happened(const char *what) { ++counts[QString::fromLatin1(what)]; }
};

/// One life of the screen.
class CostSetupModel
{
public:
    enum Editor { LimitEntry = 0, PriceEntry = 1, LimitChoice = 2, CurrencyChoice = 3, List = 4, CustomEntry = 5 };
    enum class Kind { Notice, Choice, Entry };

    struct Row {
        QString title;
        QString value;
        bool isEnabled = true;
    };
    struct Popup {
        Kind kind;
        QString header;
        QString text; ///< a notice's message, what is typed in an entry
        int editor = -1;
        int row = 0;
        bool isVisible = true;
        bool isUpperCase = true;
        int tapKey = 0;
        int turn = 0;
    };
    struct Changes {
        bool limit = false;
        bool limitIsOn = false;
        bool chargeType = false;
        bool currency = false;
        bool price = false;

        bool any() const { return limit || limitIsOn || chargeType || currency || price; }
    };

    /// The screen is made.
    explicit CostSetupModel(ExpectedHandset &handset);

    /// `key` (a Qt::Key) is pressed and released.
    void press(int key);
    /// Time passes.
    void advance(int milliseconds);
    /// The screen is destroyed.
    void destroy();

    /// The name of the unit of charge is asked for.
    QString askUnit();

    /// The popup that is seen, or null.
    Popup *visible();
    /// Rows of a choice, top to bottom.
    static QStringList choices(int editor);

    std::array<Row, 9> rows;
    int bar = 0;
    int lastIndex = -1;  ///< of the rows that were selected
    int lastEditor = -1; ///< that was opened
    ChargeSettings edited;
    Changes changes;
    std::vector<std::unique_ptr<Popup>> popups; ///< all that live
    Popup *current = nullptr;                   ///< the one that the screen closes next
    QList<int> timers;                          ///< milliseconds that are left of each
    int closings = 0;                           ///< how often the screen asked to be closed

private:
    int call(const char *operation, const QString &arguments = QString());
    quint8 ruleOf(int file);
    void disable(int first, int last, quint8 rule);
    void refresh();
    void showLimit();
    void showChargeType();
    void write();
    bool writeLimit();

    void pressOnScreen(int key);
    void pressOnNotice(Popup &popup, int key);
    void pressOnChoice(Popup &popup, int key);
    void pressOnEntry(Popup &popup, int key);
    void typeNumber(Popup &popup, int key);
    void typeCode(Popup &popup, int key);
    void tap(Popup &popup, int key);

    void select(int row);
    bool mayOpen(int row);
    bool pinIsAccepted();
    void reset(int row);
    Popup *open(Popup popup);
    void openEditor(int editor, const char *header);
    void choose(const Popup &popup);
    void save(const Popup &popup);
    void closeCurrent();
    void goBack();

    ExpectedHandset &handset;
    quint8 ruleOfCosts = 0;
    quint8 ruleOfLimit = 0;
    quint8 ruleOfPrice = 0;
    bool isSaved = false;
};
