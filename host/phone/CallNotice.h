// What the phone tells of calls on its own display.
#pragma once

#include "handset/LineControl.h"

#include <QtCore/QTimer>
#include <QtWidgets/QFrame>

#include <optional>

class QLabel;

namespace host {

class Line;

/// At the foot of the menu, below its rows: the digits that are typed; a call with its number, running time and cost; what
/// the last one has cost and why the telephone has ended it, until the user goes on. Takes no room while there is nothing
/// to tell, and lies under the plug-in's screens as the menu does.
class CallNotice : public QFrame
{
    Q_OBJECT

public:
    /// What it tells: of calls, where a keypad and a panel are beside it; or everything, with the green and the red key.
    enum class Extent { CallsOnly, WithKeysAndAllNotices };

    /// `line` outlives it. The notice fills `place` from its foot up, but for its first `rowsHeight` pixels.
    CallNotice(const Line &line, QWidget *place, int rowsHeight, Extent extent = Extent::CallsOnly);

    /// Forgets the call that is over.
    void dismiss();

signals:
    /// The green or the red key: Qt::Key_Call, Qt::Key_Hangup.
    void keyClicked(int qtKey);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Told {
        QString state;
        QString number;
        QString clock;
        QString cost;
        QString others; ///< calls beside it, a line each; what is typed during a call
        QString notice; ///< of charging, and all others
    };

    QLabel *addLabel(const char *name, int pixelSize, bool bold);
    void addKeys();
    void refresh();
    void follow(const QList<handset::LineCall> &calls);
    Told describe(const QList<handset::LineCall> &calls) const;
    Told describeEnd() const;
    Told describeCalls(const QList<handset::LineCall> &calls) const;
    void say(const Told &told);
    void sayNumber(const QString &text);
    void takePlace();

    const Line &line;
    const int rowsHeight;
    const Extent extent;
    std::optional<handset::LineCall> latest; ///< while there is a call: the one that is told of
    std::optional<handset::LineCall> over;   ///< the last one, as it was when it was seen last
    QTimer tick;
    QLabel *state;
    QLabel *number;
    QLabel *clock;
    QLabel *cost;
    QLabel *others;
    QLabel *notice;
    QWidget *callKey = nullptr; ///< as the other key null where the keypad has it
    QWidget *hangUpKey = nullptr;
};

} // namespace host
