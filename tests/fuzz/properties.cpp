// Properties that a modem's daemon tells, of whatever types.
#include "fuzz/Fuzz.h"

#include "modemmanager/Reading.h"
#include "ofono/PropertyReader.h"

#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>

namespace {

// The names that are asked for below, and one that is not.
constexpr const char *names[] = {"State", "Number", "Bytes", "Paths", "Map", "Other"};

QVariant valueOf(Taker &taker, int depth = 0)
{
    switch (taker.byte() % 12) {
    case 0:
        return taker.byte() % 2 == 0;
    case 1:
        return QVariant::fromValue(taker.byte());
    case 2:
        return taker.number<qint32>();
    case 3:
        return taker.number<quint32>();
    case 4:
        return taker.number<qint64>();
    case 5:
        return taker.number<quint64>();
    case 6:
        return static_cast<double>(taker.number<qint64>()) / 256;
    case 7:
        return QString::fromUtf8(taker.text(255));
    case 8:
        return QVariant::fromValue(QDBusObjectPath(QStringLiteral("/") + QString::number(taker.byte())));
    case 9:
        return QStringList{QString::fromUtf8(taker.text(20)), QString()};
    case 10:
        return depth < 4 ? QVariant::fromValue(QDBusVariant(valueOf(taker, depth + 1))) : QVariant();
    default:
        return depth < 4 ? QVariant(QVariantMap{{QString::fromUtf8(taker.text(8)), valueOf(taker, depth + 1)}})
                         : QVariant();
    }
}

// Taken where the type is the right one, and only there.
template <typename Value>
void tryBoth(const QVariantMap &properties, const char *name)
{
    handset::modemmanager::Reading reading;
    handset::ofono::PropertyReader reader;
    const QVariant value = properties.value(QLatin1String(name));
    const bool isRight = value.isValid() && value.metaType() == QMetaType::fromType<Value>();
    REQUIRE(reading.value<Value>(properties, name).has_value() == isRight);
    Value taken{};
    REQUIRE(reader.take(QString::fromLatin1(name), value, taken) == isRight);
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    Taker taker(bytes);
    QVariantMap properties;
    while (!taker.isAtEnd()) {
        const char *const name = names[taker.byte() % std::size(names)];
        properties.insert(QLatin1String(name), valueOf(taker));
    }
    tryBoth<QString>(properties, "State");
    tryBoth<quint32>(properties, "Number");
    tryBoth<qint32>(properties, "Number");
    tryBoth<quint64>(properties, "Bytes");
    tryBoth<bool>(properties, "Other");
    handset::modemmanager::Reading reading;
    reading.paths(properties, "Paths");
    reading.map(properties, "Map");
}
