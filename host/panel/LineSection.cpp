#include "host/panel/LineSection.h"

#include "host/panel/Controls.h"

#include <QtGui/QRegularExpressionValidator>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace host {

namespace {

struct ButtonPlan {
    Line::Action action;
    const char *text;
    const char *toolTip;
    bool isForModem; ///< the others are what the network does, or what no modem can
};

constexpr std::array<ButtonPlan, 6> buttonPlans{{
    {Line::Action::Dial, QT_TRANSLATE_NOOP("host::LineSection", "&Dial"),
     QT_TRANSLATE_NOOP("host::LineSection", "Calls the number from this phone"), true},
    {Line::Action::RemoteAnswer, QT_TRANSLATE_NOOP("host::LineSection", "&Other side answers"),
     QT_TRANSLATE_NOOP("host::LineSection", "The called side answers; the call is connected"), false},
    {Line::Action::DialData, QT_TRANSLATE_NOOP("host::LineSection", "Dial d&ata call"),
     QT_TRANSLATE_NOOP("host::LineSection", "Sets up a circuit-switched data call to the number"), false},
    {Line::Action::Ring, QT_TRANSLATE_NOOP("host::LineSection", "&Incoming call"),
     QT_TRANSLATE_NOOP("host::LineSection", "The number calls this phone; empty for a withheld number"), false},
    {Line::Action::HangUp, QT_TRANSLATE_NOOP("host::LineSection", "&Hang up"),
     QT_TRANSLATE_NOOP("host::LineSection", "Ends the call on the line, whatever its state"), true},
    {Line::Action::Answer, QT_TRANSLATE_NOOP("host::LineSection", "A&nswer"),
     QT_TRANSLATE_NOOP("host::LineSection", "Answers the incoming call; the call is connected"), true},
}};

// A state is news, each second of it is none.
QString withoutClocks(QString text)
{
    static const QRegularExpression clock(QStringLiteral("\\d+:\\d\\d:\\d\\d"));
    return text.remove(clock);
}

// A countdown is news at 30, 20, 10 and 5 seconds, and not in between.
QString atTheMark(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("\\d+"));
    const QRegularExpressionMatch seconds = number.match(text);
    if (!seconds.hasMatch())
        return text;
    int mark = 0;
    for (const int passed : {5, 10, 20, 30}) {
        mark = passed;
        if (seconds.captured().toInt() <= passed)
            break;
    }
    return QString(text).replace(seconds.capturedStart(), seconds.capturedLength(), QString::number(mark));
}

} // namespace

LineSection::LineSection(Line &drivenLine)
    : PanelSection(tr("Line"))
    , line(drivenLine)
    , state(new Announcement("line state", tr("State of the line")))
    , notice(new Announcement("charge notice", tr("End of charging")))
    , record(new Announcement("record notice", tr("What is not in the call log yet")))
    , told(makeAnnouncement("told notice", tr("What the telephone has told")))
    , failure(new Announcement("line failure"))
    , number(new QLineEdit(drivenLine.number()))
{
    auto *column = new QVBoxLayout(this);
    column->setSpacing(10);
    QFont bold = state->font();
    bold.setBold(true);
    state->setFont(bold);
    state->setWordWrap(true);
    column->addWidget(state);
    addNumber(column);
    addButtons(column); // above what comes and goes: they keep their places
    notice->setFont(bold);
    notice->setWordWrap(true);
    column->addWidget(notice);
    record->setFont(bold);
    record->setWordWrap(true);
    column->addWidget(record);
    told->setFont(bold);
    column->addWidget(told);
    failure->setWordWrap(true);
    column->addWidget(failure);
}

void LineSection::addNumber(QVBoxLayout *column)
{
    static const QRegularExpression dialable(QStringLiteral("[0-9+*#]{0,80}"));
    number->setValidator(new QRegularExpressionValidator(dialable, number));
    number->setObjectName(QStringLiteral("number"));
    number->setLayoutDirection(Qt::LeftToRight); // "+4930", also where texts are read from right to left
    number->setToolTip(tr("Digits, +, * and #"));
    number->setClearButtonEnabled(true);
    number->findChild<QToolButton *>()->setAccessibleName(tr("Clear the number"));
    auto *label = new QLabel(tr("N&umber"));
    label->setBuddy(number);
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(number);
    column->addLayout(row);
    connect(number, &QLineEdit::textChanged, &line, &Line::setNumber);
    connect(number, &QLineEdit::returnPressed, &line, [this] { line.perform(Line::Action::Dial); });
}

void LineSection::addButtons(QVBoxLayout *column)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    int place = 0;
    for (std::size_t index = 0; index < buttonPlans.size(); ++index) {
        const ButtonPlan &plan = buttonPlans[index];
        if (line.modemLine() && !plan.isForModem)
            continue;
        auto *button = new QPushButton(tr(plan.text));
        button->setToolTip(tr(plan.toolTip));
        button->setFocusPolicy(Qt::TabFocus); // the pointer leaves the keys with the phone
        connect(button, &QPushButton::clicked, &line, [this, action = plan.action] { line.perform(action); });
        grid->addWidget(button, place / 2, place % 2);
        ++place;
        buttons[index] = button;
    }
    column->addLayout(grid);
}

void LineSection::refresh()
{
    const QString described = line.describeState();
    state->say(breakableWords(described), withoutClocks(described));
    notice->say(line.chargeNotice(), atTheMark(line.chargeNotice()));
    record->say(line.recordNotice());
    told->say(breakableWords(line.toldNotice()), line.toldNotice());
    failure->say(line.failure());
    for (std::size_t index = 0; index < buttonPlans.size(); ++index) {
        if (buttons[index])
            buttons[index]->setEnabled(line.permits(buttonPlans[index].action));
    }
    if (number->text() != line.number())
        number->setText(line.number());
    number->setEnabled(line.simulatedHandset() || line.modemLine());
}

} // namespace host
