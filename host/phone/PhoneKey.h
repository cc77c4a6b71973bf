// One key of the keypad.
#pragma once

#include <QtWidgets/QAbstractButton>

namespace host {

class PhoneKey : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Legend { Text, Bar, ArrowUp, ArrowDown, Ring, Call, HangUp };

    /// `legend` is what is printed on the key: `text` (and under it `letters`), or a sign.
    PhoneKey(Legend legend, const QString &text, const QString &letters, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap face() const;
    void paintFace(QPainter &painter) const;
    void paintText(QPainter &painter) const;
    void paintSign(QPainter &painter) const;

    const Legend legend;
    const QString letters;
};

} // namespace host
