// The controls that the sections are made of, so that all look and behave alike.
#pragma once

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace host {

/// A text that changes. Read aloud, it is "title: text"; without a title it is the text alone. `name` (untranslated)
/// is its object name.
class Value : public QLabel
{
    Q_OBJECT

public:
    explicit Value(const char *name, const QString &title = {});

    /// What is read aloud now.
    QString spoken() const;

private:
    const QString title;
};

/// A value that is told without being asked for: a state, a refusal, a countdown, a result. It takes room only while
/// there is a text, and is scrolled into view when that is news.
class Announcement : public Value
{
    Q_OBJECT

public:
    using Value::Value;

    /// Shows `text`, and tells it aloud unless it was told already with the same `gist`: what of a text that changes all
    /// the time is news.
    void say(const QString &text, const QString &gist);
    void say(const QString &text) { say(text, text); }

private:
    void comeIntoView();

    QString told;
};

/// A value that can be selected with the pointer. `name` (untranslated) is its object name, `accessible`
/// what it is called aloud.
QLabel *makeValue(const char *name, const QString &accessible);
/// The same that is told when it changes. Hidden until it has a text.
Announcement *makeAnnouncement(const char *name, const QString &accessible);
/// The pointer leaves the keys with the phone; the Tab key reaches it. `text` may have a mnemonic.
QPushButton *makeButton(const QString &text, const QString &toolTip);
/// A choice, likewise.
QComboBox *makeChoice(const char *name, const QString &accessible, const QStringList &items);
/// For numbers, codes and names that are written from left to right in every language.
QLineEdit *makeEntry(const char *name, const QString &accessible, const QString &toolTip);

/// A number as the phone writes it, 0.23, of one as it is typed in any language: the decimal sign may be a comma, the
/// digits those of the keyboard. What is no number stays none.
QString plainNumber(const QString &typed);

/// Takes what is typed as plainNumber() does.
class DecimalBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &text, int &place) const override;
    double valueFromText(const QString &text) const override;
};

/// The wheel turns the panel and not the choice or number that happens to be under it, unless that has the focus.
void leaveWheelToPanel(QWidget *control);

/// `text` with an invisible place to break the line after each character: for a name without blanks.
QString breakableAnywhere(const QString &text);

/// `text` with such places within words that are longer than a line of the panel.
QString breakableWords(const QString &text);

/// While it lives, changes to a control are the program's and not the user's.
template <typename Control>
class Quietly
{
public:
    explicit Quietly(Control *changed)
        : control(changed)
        , wasBlocked(changed->blockSignals(true))
    {}
    ~Quietly() { control->blockSignals(wasBlocked); }
    Q_DISABLE_COPY_MOVE(Quietly)

    Control *operator->() const { return control; }

private:
    Control *const control;
    const bool wasBlocked;
};

} // namespace host
