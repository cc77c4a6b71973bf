#include "host/panel/PacketSection.h"

#include "handset/PacketData.h"
#include "handset/UpdateBroadcast.h"
#include "host/Latin1.h"
#include "host/StatusText.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <limits>

namespace host {

using handset::CallTime;
using handset::DataSession;
using handset::PacketData;

namespace {

constexpr StatusMeaning packetMeaning{
    QT_TRANSLATE_NOOP("host::StatusText", "an access point name has 1 to 101 Latin-1 characters"),
    QT_TRANSLATE_NOOP("host::StatusText", "a session is running, or none is"),
    QT_TRANSLATE_NOOP("host::StatusText", "not allowed")};
constexpr int usualSent = 500;
constexpr int usualReceived = 4000;

QString timeText(const CallTime &time)
{
    return clockText(qint64{time.hours} * 3600 + qint64{time.minutes} * 60 + time.seconds);
}

QString bytesText(quint32 sent, quint32 received)
{
    return PacketSection::tr("%1 B sent, %2 B received").arg(sent).arg(received);
}

QString recordText(const DataSession &session)
{
    if (session.id == 0)
        return PacketSection::tr("empty");
    return PacketSection::tr("%1 (id %2), %3\n%4")
        .arg(breakableAnywhere(QString::fromLatin1(session.apn)))
        .arg(session.id)
        .arg(timeText(session.duration), bytesText(session.bytesSent, session.bytesReceived));
}

QString totalText(PacketData &packets)
{
    CallTime duration;
    quint32 total = 0;
    quint32 received = 0;
    quint32 sent = 0;
    const bool isTold = packets.totalDuration(duration) == handset::Success &&
                        packets.totalBytes(total, received, sent) == handset::Success;
    if (!isTold)
        return PacketSection::tr("not available");
    return PacketSection::tr("%1, %2 B\n%3").arg(timeText(duration)).arg(total).arg(bytesText(sent, received));
}

QSpinBox *makeRate(const char *name, const QString &accessible, int value)
{
    auto *rate = new QSpinBox;
    rate->setObjectName(QString::fromLatin1(name));
    rate->setAccessibleName(accessible);
    rate->setToolTip(accessible);
    rate->setRange(0, std::numeric_limits<int>::max());
    rate->setValue(value);
    rate->setSingleStep(100);
    rate->setFocusPolicy(Qt::StrongFocus);
    leaveWheelToPanel(rate);
    return rate;
}

} // namespace

PacketSection::PacketSection(Line &drivenLine)
    : PanelSection(tr("Packet data"))
    , line(drivenLine)
    , apn(makeEntry("apn", tr("Access point name"), tr("1 to 101 characters")))
    , sent(makeRate("sent rate", tr("Bytes sent each second"), usualSent))
    , received(makeRate("received rate", tr("Bytes received each second"), usualReceived))
    , startButton(makeButton(tr("&Start session"), tr("Begins a session, which counts bytes and time")))
    , stopButton(makeButton(tr("Sto&p session"), tr("Ends the session")))
    , failure(makeAnnouncement("packet failure", tr("Why the session was not changed")))
    , total(makeValue("packet total", tr("All sessions")))
{
    auto *grid = new QGridLayout(this);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    addControls(grid);
    addFigures(grid, 5);
    connect(startButton, &QPushButton::clicked, this, &PacketSection::start);
    connect(apn, &QLineEdit::returnPressed, this, &PacketSection::start);
    connect(stopButton, &QPushButton::clicked, this, &PacketSection::stop);
}

void PacketSection::addControls(QGridLayout *grid)
{
    apn->setText(QStringLiteral("internet"));
    apn->setMaxLength(static_cast<int>(DataSession::longestApn));
    grid->addWidget(new QLabel(tr("Access point name")), 0, 0);
    grid->addWidget(apn, 0, 1);
    grid->addWidget(new QLabel(tr("Bytes sent a second")), 1, 0);
    grid->addWidget(sent, 1, 1);
    grid->addWidget(new QLabel(tr("Bytes received a second")), 2, 0);
    grid->addWidget(received, 2, 1);
    grid->addWidget(startButton, 3, 0);
    grid->addWidget(stopButton, 3, 1);
    grid->addWidget(failure, 4, 0, 1, 2);
}

void PacketSection::addFigures(QGridLayout *grid, int row)
{
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        const QString name = QStringLiteral("session %1").arg(number);
        records[i] = makeValue(qPrintable(name), tr("Session %1").arg(number));
        grid->addWidget(new QLabel(tr("Session %1:").arg(number)), row++, 0, 1, 2);
        grid->addWidget(records[i], row++, 0, 1, 2);
    }
    grid->addWidget(new QLabel(tr("All sessions:")), row++, 0, 1, 2);
    grid->addWidget(total, row++, 0, 1, 2);
    QPushButton *update = makeButton(tr("S&end update"), tr("Tells the screens that the figures have changed"));
    grid->addWidget(update, row, 0, 1, 2);
    connect(update, &QPushButton::clicked, this, [] { handset::broadcastUpdate(); });
}

void PacketSection::start()
{
    const std::optional<QByteArray> name = latin1Of(apn->text());
    told(name ? line.simulatedHandset()->packets().startSession(*name, static_cast<quint32>(sent->value()),
                                                                static_cast<quint32>(received->value()))
              : int{handset::InvalidArgument});
}

void PacketSection::stop()
{
    told(line.simulatedHandset()->packets().stopSession());
}

void PacketSection::told(int status)
{
    failure->say(refusalText(status, packetMeaning));
    refresh();
}

void PacketSection::refresh()
{
    PacketData *packets = line.handset().packetData();
    setEnabled(packets);
    if (!packets)
        return;
    Line::SimulatedHandset *simulated = line.simulatedHandset();
    const bool running = simulated && simulated->packets().isSessionRunning();
    for (QWidget *control : std::initializer_list<QWidget *>{apn, sent, received})
        control->setEnabled(simulated);
    startButton->setEnabled(simulated && !running);
    stopButton->setEnabled(running);
    handset::DataSessions sessions;
    const bool isTold = packets->sessions(sessions) == handset::Success;
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i]->setText(isTold ? recordText(sessions.records[i]) : tr("not available"));
    total->setText(totalText(*packets));
}

} // namespace host
