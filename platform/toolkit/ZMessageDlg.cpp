#include "toolkit/ZMessageDlg.h"

#include "qt/translation.h"
#include "toolkit/ZTextPane.h"

#include <QtCore/qlogging.h>
#include <QtGui/QKeyEvent>

struct ZMessageDlg::Private {
    QString message;
    MessageDlgType type;
    ZTextPane *text = nullptr;
};

ZMessageDlg::ZMessageDlg(const QString &header, const QString &message, MessageDlgType type, int timeout,
                         QWidget *parent, const char *name, bool modal, unsigned int flags)
    : ZPopup(header, parent, name, modal, flags)
    , d(std::make_unique<Private>(Private{message, type}))
{
    if (type != QuestionDlg && type != InformationDlg) {
        qWarning("ZMessageDlg: there is no type %d", static_cast<int>(type));
        d->type = InformationDlg;
    }
    switch (d->type) {
    case QuestionDlg:
        setSoftkeyTextLeft(translatedFor<ZMessageDlg>("TXT_RID_SOFTKEY_YES", "Yes"));
        setSoftkeyTextRight(translatedFor<ZMessageDlg>("TXT_RID_SOFTKEY_NO", "No"));
        break;
    case InformationDlg:
        setSoftkeyTextLeft(translatedFor<ZMessageDlg>("TXT_RID_SOFTKEY_OK", "OK"));
        break;
    }
    answerAfter(timeout, d->type == QuestionDlg ? RightAnswer : LeftAnswer);
    setAccessibleDescription(message);
    d->text = new ZTextPane(message, this);
    setBody(d->text);
}

ZMessageDlg::~ZMessageDlg() = default;

QString ZMessageDlg::message() const
{
    return d->message;
}

ZMessageDlg::MessageDlgType ZMessageDlg::type() const
{
    return d->type;
}

void ZMessageDlg::keyPressEvent(QKeyEvent *event)
{
    if (d->text->scrollByKey(event->key()))
        event->accept();
    else
        ZPopup::keyPressEvent(event);
}
