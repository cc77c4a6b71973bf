#include "security/SETUP_SECURITY_Util.h"

#include "handset/Roles.h"
#include "handset/SimSecurity.h"
#include "qt/translation.h"
#include "security/PinEntryDlg.h"
#include "toolkit/ZMessageDlg.h"

#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtCore/qlogging.h>

#include <array>

namespace {

struct Text {
    const char *key;
    const char *english;
};

struct PinTexts {
    SETUP_SECURITY_PINTYPE_E pin;
    Text name;
    Text header;
    Text wrong;
    Text blocked;
    Text noAnswer;
};

constexpr std::array<PinTexts, 2> pinTexts = {{
    {SETUP_SECURITY_PIN1,
     {"TXT_RID_HEADER_PIN1", "PIN1"},
     {"TXT_RID_HEADER_ENTER_PIN1", "Enter PIN1"},
     {"TXT_RID_INSTRUCTIONALTXT_WRONG_PIN1", "Wrong PIN1"},
     {"TXT_RID_INSTRUCTIONALTXT_PIN1_IS_BLOCKED", "PIN1 is blocked. Only PUK1 can unblock it."},
     {"TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN1", "The SIM card cannot be asked for PIN1."}},
    {SETUP_SECURITY_PIN2,
     {"TXT_RID_HEADER_PIN2", "PIN2"},
     {"TXT_RID_HEADER_ENTER_PIN2", "Enter PIN2"},
     {"TXT_RID_INSTRUCTIONALTXT_WRONG_PIN2", "Wrong PIN2"},
     {"TXT_RID_INSTRUCTIONALTXT_PIN2_IS_BLOCKED", "PIN2 is blocked. Only PUK2 can unblock it."},
     {"TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_PIN2", "The SIM card cannot be asked for PIN2."}},
}};
static_assert(pinTexts[SETUP_SECURITY_PIN1].pin == SETUP_SECURITY_PIN1 &&
              pinTexts[SETUP_SECURITY_PIN2].pin == SETUP_SECURITY_PIN2);

constexpr Text okKey = {"TXT_RID_SOFTKEY_OK", "OK"};
constexpr Text cancelKey = {"TXT_RID_SOFTKEY_CANCEL", "Cancel"};
constexpr Text triesLeftText = {"FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1", "Tries left: %1"};
constexpr Text rangeText = {"TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS", "4 to 8 digits"};

QString text(const Text &resource)
{
    return translated("SETUP_SECURITY_Util", resource.key, resource.english);
}

// Ends a loop when a dialog is out of sight: answered, or gone with its screen, its display or the application.
class EndWithDialog : public QObject
{
public:
    EndWithDialog(QEventLoop &waiting, ZPopup *dialog)
        : loop(waiting)
    {
        dialog->installEventFilter(this);
        connect(dialog, &QObject::destroyed, this, [this] { loop.quit(); });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            loop.quit();
        return false;
    }

private:
    QEventLoop &loop;
};

// Shows `dialog` until it is answered, and answers whether that was by the left softkey. It may be gone then.
bool isConfirmed(ZPopup *dialog)
{
    bool confirmed = false;
    QEventLoop loop;
    EndWithDialog end(loop, dialog);
    QObject::connect(dialog, &ZPopup::leftSoftkeyClicked, &end, [&confirmed] { confirmed = true; });
    dialog->show();
    // On a screen that is not to be seen there is nobody to answer.
    if (dialog->isVisible())
        loop.exec();
    return confirmed;
}

// One question for a PIN, from the first digit until the SIM has taken it or the user has given up.
class Question
{
public:
    Question(SETUP_SECURITY_PINTYPE_E pinType, QWidget *parentWidget)
        : pin(static_cast<quint8>(pinType))
        , texts(pinTexts[pin])
        , parent(parentWidget)
        , hasParent(parentWidget)
        , entry(new PinEntryDlg(text(texts.header), text(rangeText), parentWidget))
    {
        entry->setSoftkeyTextLeft(text(okKey));
        entry->setSoftkeyTextRight(text(cancelKey));
    }

    ~Question() { delete entry; }
    Q_DISABLE_COPY_MOVE(Question)

    SETUP_SECURITY_PINVERIFY_ERR_E ask()
    {
        bool accepted = false;
        for (bool again = false; !accepted; again = true) {
            SETUP_SECURITY_PINVERIFY_ERR_E error = prepare(again);
            if (error == SETUP_SECURITY_VERIFY_OK)
                error = isConfirmed(entry) && entry ? present(accepted) : SETUP_SECURITY_VERIFY_CANCELLED;
            if (error != SETUP_SECURITY_VERIFY_OK)
                return explained(error);
        }
        return SETUP_SECURITY_VERIFY_OK;
    }

private:
    // Asks the SIM whether it would take a PIN at all, and says how often.
    SETUP_SECURITY_PINVERIFY_ERR_E prepare(bool again)
    {
        quint32 status = 0;
        int tries = 0;
        bool isCounted = false;
        const int answer = withRole(&handset::Handset::simSecurity, [&](handset::SimSecurity &sim) {
            const int known = sim.pinStatus(pin, status);
            isCounted = known == handset::Success && sim.triesLeft(pin, tries) == handset::Success;
            return known;
        });
        if (answer != handset::Success)
            return SETUP_SECURITY_VERIFY_FAILED;
        if (status == handset::SimSecurity::Blocked || (isCounted && tries <= 0))
            return SETUP_SECURITY_VERIFY_BLOCKED;
        entry->prepare(again ? text(texts.wrong) : QString(),
                       isCounted ? text(triesLeftText).arg(tries) : QString());
        return SETUP_SECURITY_VERIFY_OK;
    }

    SETUP_SECURITY_PINVERIFY_ERR_E present(bool &accepted)
    {
        const int status = withRole(&handset::Handset::simSecurity, [&](handset::SimSecurity &sim) {
            return sim.verifyPin(pin, entry->digits().view(), accepted);
        });
        if (entry)
            entry->forgetDigits();
        if (status == handset::NotAllowed)
            return SETUP_SECURITY_VERIFY_BLOCKED;
        return status == handset::Success ? SETUP_SECURITY_VERIFY_OK : SETUP_SECURITY_VERIFY_FAILED;
    }

    SETUP_SECURITY_PINVERIFY_ERR_E explained(SETUP_SECURITY_PINVERIFY_ERR_E error) const
    {
        switch (error) {
        case SETUP_SECURITY_VERIFY_BLOCKED:
            tell(text(texts.blocked));
            break;
        case SETUP_SECURITY_VERIFY_FAILED:
            tell(text(texts.noAnswer));
            break;
        case SETUP_SECURITY_VERIFY_OK:
        case SETUP_SECURITY_VERIFY_CANCELLED:
            break;
        }
        return error;
    }

    void tell(const QString &message) const
    {
        if (hasParent && !parent)
            return;
        const QPointer<ZMessageDlg> dialog =
            new ZMessageDlg(text(texts.name), message, ZMessageDlg::InformationDlg, 0, parent, nullptr, true, 0);
        isConfirmed(dialog);
        delete dialog;
    }

    const quint8 pin;
    const PinTexts &texts;
    const QPointer<QWidget> parent;
    const bool hasParent;
    const QPointer<PinEntryDlg> entry;
};

bool isAsking = false;

} // namespace

int SETUP_SECURITY_Util::verifyPin(SETUP_SECURITY_PINTYPE_E &pinType, SETUP_SECURITY_SKTYPE_E const &,
                                   SETUP_SECURITY_PINVERIFY_ERR_E &error, QWidget *parent)
{
    if (pinType != SETUP_SECURITY_PIN1 && pinType != SETUP_SECURITY_PIN2) {
        qWarning("SETUP_SECURITY_Util::verifyPin: there is no PIN %d", static_cast<int>(pinType));
        error = SETUP_SECURITY_VERIFY_FAILED;
        return 0;
    }
    if (isAsking) {
        error = SETUP_SECURITY_VERIFY_CANCELLED;
        return 0;
    }
    isAsking = true;
    const auto done = qScopeGuard([] { isAsking = false; });
    error = Question(pinType, parent).ask();
    return error == SETUP_SECURITY_VERIFY_OK ? 1 : 0;
}
