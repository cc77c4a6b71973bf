// What the phone's keys type in an entry field. Inside the toolkit only.
#pragma once

#include "toolkit/ZMultiTap.h"

#include <QtCore/QObject>

class QKeyEvent;
class QWidget;

/// Stands between the keys and a field, whatever class of text field it is. The keys that a phone has get a
/// meaning of their own; everything else, every letter of a keyboard included, is typed as it is.
///
/// Decimal: the star key and the comma are the decimal point. The star key gives it once, a keyboard as often as
/// it is typed.
/// Letters: the number keys give letters, the next one of the key with each quick press; a key that is held gives
/// its digit. The star key changes between upper case, which comes first, and lower case.
/// Either: the hash key takes away the character before the cursor, as there is no other key for that.
class ZKeypadInput : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Decimal, Letters };

    /// Belongs to `field` and takes the place of what it had before.
    ZKeypadInput(QWidget *field, Kind kind);
    /// What `field` has; null for nothing.
    static ZKeypadInput *of(const QWidget *field);
    /// Takes away what `field` has.
    static void remove(QWidget *field);

    /// What is typed now, in a few characters: "123", "ABC", "abc".
    QString indicator() const;
    /// What the star and the hash key do, in signs.
    QString legend() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void indicatorChanged();

private:
    bool keyPressed(const QKeyEvent *event);
    bool decimalKey(int qtKey);
    bool letterKey(const QKeyEvent *event);
    void tapKey(int qtKey);
    void holdKey(int qtKey);
    void takeBack();
    QString text() const;
    int cursor() const;
    bool type(const QString &characters, bool insteadOfLast);

    QWidget *const target;
    const Kind kind;
    ZMultiTap multiTap;
    int cursorAfterTap = 0;
    bool upperCase = true;
};
