// A modem whose daemon says what a test wants.
#pragma once

#include "live/Modem.h"

#include <QtCore/QStringList>

namespace handset::test {

class ScriptedModem final : public live::Modem
{
public:
    QString daemon() const override { return QStringLiteral("script"); }
    live::ModemState state() const override { return {true, QStringLiteral("Modem"), {}, {}}; }
    QString connectToBus(int /*longestMs*/) override { return busError; }
    bool isBusSilent() const override { return isSilent; }
    void start() override { asked << QStringLiteral("start"); }
    int dial(const QString &number) override { return note(QStringLiteral("dial ") + number); }
    int answer(const QString &id) override { return note(QStringLiteral("answer ") + id); }
    int hangUp(const QString &id) override { return note(QStringLiteral("hang up ") + id); }

    QStringList asked;
    QString busError; ///< at the start
    bool isSilent = false;

private:
    int note(const QString &what)
    {
        asked << what;
        return Success;
    }
};

} // namespace handset::test
