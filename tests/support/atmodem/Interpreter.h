// The AT language of one port: takes the lines apart, answers them from the phone behind, and tells what happens.
#pragma once

#include "support/atmodem/Phone.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <functional>

namespace atmodem {

/// What the modem was asked on any of its ports, and what it did not know.
struct CommandLog {
    QList<QByteArray> commands;
    QList<QByteArray> unknown;
};

class Interpreter : public PhoneListener
{
public:
    using Write = std::function<void(const QByteArray &)>;

    Interpreter(Phone &phone, CommandLog &log, Write write);
    ~Interpreter() override;
    Q_DISABLE_COPY_MOVE(Interpreter)

    void receive(const QByteArray &bytes);
    /// Who comes to the port finds it as after power-on; a data connection of it is over.
    void restart();

    void rang(const QByteArray &number) override;
    void callWaits(const QByteArray &number) override;
    void callEnded(End end) override;
    void meterChanged(unsigned units) override;
    void maximumIsNear() override;
    void registrationChanged() override;
    void dataEnded(int context) override;

    bool isSilent = false; ///< what comes in is read and forgotten
    qint64 dataBytes = 0;  ///< received in data mode, of all connections

private:
    enum class Form { Execute, Set, Read, Test };
    struct Request {
        QByteArray name;
        Form form = Form::Execute;
        QList<QByteArray> values; ///< without their quotes
        QByteArray value(qsizetype i) const { return values.value(i); }
        int number(qsizetype i, int otherwise = 0) const
        {
            return i < values.size() ? values[i].toInt() : otherwise;
        }
    };
    /// Either final result or +CME ERROR.
    struct Answer {
        QList<QByteArray> lines;
        QByteArray result = "OK";
        int error = -1;
    };
    struct Command {
        const char *name;
        Answer (Interpreter::*run)(const Request &request);
    };
    struct Modes {
        bool hasEcho = true;
        int errors = 0;              ///< +CMEE
        int circuitRegistration = 0; ///< +CREG
        int packetRegistration = 0;  ///< +CGREG
        int operatorFormat = 0;      ///< +COPS
        bool showsNumber = false;    ///< +CLIP
        bool saysType = false;       ///< +CRC
        bool showsWaiting = false;   ///< +CCWA
        bool reportsMeter = false;   ///< +CAOC=2
        bool warns = false;          ///< +CCWE
    };

    static const Command commands[];

    void runLine(const QByteArray &line);
    Answer runOne(const QByteArray &command);
    static QList<QByteArray> split(const QByteArray &line);
    static Request parse(const QByteArray &command);
    void tell(const QByteArray &line);
    void reply(const Answer &answer);
    void enterData(int context);

    static Answer error(int code) { return {{}, {}, code}; }
    static Answer plainError() { return {{}, "ERROR", -1}; }
    static Answer ok(const QByteArray &line) { return {{line}, "OK", -1}; }
    static Answer accessAnswer(Sim::Access access);
    QByteArray registrationLine(const char *name, int mode) const;
    bool isRegistered() const;

    Answer basic(const Request &request);
    Answer constant(const Request &request);
    Answer accepted(const Request &request);
    Answer dial(const Request &request);
    Answer accept(const Request &request);
    Answer hangUp(const Request &request);
    Answer hold(const Request &request);
    Answer listCalls(const Request &request);
    Answer mode(const Request &request);
    Answer function(const Request &request);
    Answer pin(const Request &request);
    Answer pinTries(const Request &request);
    Answer password(const Request &request);
    Answer lock(const Request &request);
    Answer readCard(const Request &request);
    Answer askCard(const Request &request);
    Answer registration(const Request &request);
    Answer network(const Request &request);
    Answer meters(const Request &request);
    Answer accumulatedMeter(const Request &request);
    Answer maximum(const Request &request);
    Answer price(const Request &request);
    Answer attach(const Request &request);
    Answer defineContext(const Request &request);
    Answer activate(const Request &request);
    Answer address(const Request &request);
    Answer enterDataMode(const Request &request);

    Phone &phone;
    CommandLog &log;
    Write write;
    Modes modes;
    QByteArray pending;
    int dataContext = 0; ///< 0: no data mode
};

} // namespace atmodem
