// A live handset over any modem, with a clock and network interfaces of the test's own.
#pragma once

#include "calllog/OpenLedger.h"
#include "handset/HandsetTestKit.h"
#include "live/LiveHandset.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QTest>

namespace handset::test {

class LiveDesk
{
public:
    explicit LiveDesk(std::shared_ptr<ManualClock> shared = nullptr)
        : clock(shared ? std::move(shared) : std::make_shared<ManualClock>(qint64{1'800'000'000'000}))
    {}

    void open(std::unique_ptr<live::Modem> modem)
    {
        openWith([&](std::unique_ptr<calllog::Ledger> ledger, live::InterfaceCounters counters) {
            return std::make_unique<live::LiveHandset>(std::move(ledger), clock, std::move(modem),
                                                       std::move(counters));
        });
    }
    /// Opens what `make` makes of the ledger and the network interfaces.
    template <typename Make>
    void openWith(Make make)
    {
        close();
        calllog::OpenedLedger opened = calllog::openLedger(state.path(), clock);
        QVERIFY2(opened.ledger, qPrintable(opened.error));
        phone = make(std::move(opened.ledger), live::InterfaceCounters(interfaces.path()));
    }
    void close() { phone.reset(); }

    void setInterface(const QString &name, qint64 sent, qint64 received) const
    {
        const QString folder = interfaces.filePath(name + QStringLiteral("/statistics"));
        QVERIFY(QDir().mkpath(folder));
        for (const auto &[file, number] : {std::pair("/tx_bytes", sent), std::pair("/rx_bytes", received)}) {
            QFile counter(folder + QLatin1String(file));
            QVERIFY(counter.open(QIODevice::WriteOnly));
            counter.write(QByteArray::number(number) + '\n');
        }
    }
    /// Moves the clock on and lets the handset write what it has.
    void pass(qint64 ms)
    {
        clock->advance(ms);
        tick();
    }
    void tick() const
    {
        for (QTimer *timer : phone->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            if (timer->isActive())
                QMetaObject::invokeMethod(timer, "timeout");
    }
    quint64 last() const { return seconds(&CallLog::lastCallTime); }
    quint64 dialed() const { return seconds(&CallLog::dialedCallsTime); }
    quint64 answered() const { return seconds(&CallLog::answeredCallsTime); }
    quint64 all() const { return seconds(&CallLog::lifetimeCallsTime); }
    QString rows(const QString &columns, const QString &table = QStringLiteral("calls")) const
    {
        return LogFile(state.database())
            .value(QStringLiteral("SELECT group_concat(%1, ' ') FROM %2").arg(columns, table))
            .toString();
    }
    QString calls() const
    {
        return rows(QStringLiteral("direction || ':' || number || ':' || duration_ms || ':' || state"));
    }
    QString sessions() const
    {
        return rows(QStringLiteral("apn || ':' || duration_ms || ':' || sent || ':' || received || ':' || state"),
                    QStringLiteral("sessions"));
    }

    std::shared_ptr<ManualClock> clock;
    StateDir state;
    QTemporaryDir interfaces;
    std::unique_ptr<live::LiveHandset> phone;

private:
    quint64 seconds(int (CallLog::*query)(CallTime &)) const
    {
        CallTime time;
        const int status = (phone->callLog()->*query)(time);
        return status == Success ? quint64{time.hours} * 3600 + time.minutes * 60 + time.seconds : 99'999'999;
    }
};

} // namespace handset::test
