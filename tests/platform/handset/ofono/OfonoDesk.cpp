#include "handset/ofono/OfonoDesk.h"

namespace handset::test {

namespace {

QString phaseName(CallPhase phase)
{
    switch (phase) {
    case CallPhase::Dialing:
        return QStringLiteral("dialing");
    case CallPhase::Alerting:
        return QStringLiteral("alerting");
    case CallPhase::Incoming:
        return QStringLiteral("incoming");
    case CallPhase::Waiting:
        return QStringLiteral("waiting");
    case CallPhase::Active:
        return QStringLiteral("active");
    case CallPhase::Held:
        return QStringLiteral("held");
    case CallPhase::Over:
        return QStringLiteral("over");
    }
    return {};
}

QString shortId(const QString &path)
{
    return path.section(QLatin1Char('/'), -1);
}

} // namespace

Listener::Listener(live::Modem &modem)
{
    QObject::connect(&modem, &live::Modem::callReported, [this](const live::ReportedCall &call) {
        QStringList words{shortId(call.id), phaseName(call.phase), call.number};
        if (call.direction)
            words.append(QStringLiteral("directed"));
        if (call.connectedWallMs)
            words.append(QString::number(*call.connectedWallMs));
        if (call.isFound)
            words.append(QStringLiteral("found"));
        told.append(words.join(QLatin1Char(' ')));
    });
    QObject::connect(&modem, &live::Modem::callGone,
                     [this](const QString &id) { told.append(shortId(id) + QStringLiteral(" gone")); });
    QObject::connect(&modem, &live::Modem::sessionReported, [this](const live::ReportedSession &session) {
        QStringList words{shortId(session.id), QString::fromLatin1(session.apn), session.interface};
        if (session.counted || session.ms || session.sinceWallMs)
            words.append(QStringLiteral("counted"));
        if (session.isFound)
            words.append(QStringLiteral("found"));
        told.append(words.join(QLatin1Char(' ')));
    });
    QObject::connect(&modem, &live::Modem::sessionGone,
                     [this](const QString &id) { told.append(shortId(id) + QStringLiteral(" gone")); });
    QObject::connect(&modem, &live::Modem::lost, [this] { told.append(QStringLiteral("lost")); });
    QObject::connect(&modem, &live::Modem::refused, [this](const QString &why) { told.append(why); });
}

void OfonoDesk::start()
{
    fake.appear();
    look();
}

void OfonoDesk::look()
{
    modem = std::make_unique<ofono::OfonoModem>(patience);
    heard = std::make_unique<Listener>(*modem);
    modem->start();
}

QVariantMap callIn(const char *state, const char *number)
{
    return {{QStringLiteral("State"), QLatin1String(state)},
            {QStringLiteral("LineIdentification"), QLatin1String(number)}};
}

} // namespace handset::test
