// Letters from the phone's number keys. Inside the toolkit only.
#pragma once

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QString>

/// Every press of a number key within `interval` of the last one asks for the key's next character. Any other
/// key, a pause or end() makes the character stay; the next press is then a new one.
class ZMultiTap : public QObject
{
public:
    static constexpr int interval = 1000; ///< milliseconds

    struct Tap {
        QChar character;
        bool isAnother; ///< takes the place of the character before
    };

    /// The upper-case characters of number key `qtKey` (Qt::Key_0 to Qt::Key_9) in their order, its digit last;
    /// empty for another key.
    static QString charactersOf(int qtKey);

    /// What pressing `qtKey`, which has characters, asks for now.
    Tap tap(int qtKey);
    /// The character stays.
    void end();
    /// Whether another press of `qtKey` would take the place of its last character.
    bool isOpenFor(int qtKey) const;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer pause;
    int key = 0;
    int turn = 0;
};
