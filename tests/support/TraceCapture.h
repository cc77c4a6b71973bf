// The trace stream of the phone, caught by a test.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <cstdio>

/// Takes the trace stream while it lives, and gives it back as it was.
class TraceCapture
{
public:
    TraceCapture();
    ~TraceCapture();
    Q_DISABLE_COPY_MOVE(TraceCapture)

    /// Everything written since the capture began or take() was called, Latin-1.
    QString text() const;
    /// The same with every source line number as "#", and starts anew.
    QString take();

private:
    FILE *previous;
    char *buffer = nullptr;
    size_t size = 0;
    size_t taken = 0;
    FILE *stream;
};

/// Throws the traces away while it lives: for runs of millions of calls.
class TraceSink
{
public:
    TraceSink();
    ~TraceSink();
    Q_DISABLE_COPY_MOVE(TraceSink)

private:
    FILE *previous;
    FILE *sink;
};

/// `trace` with the line numbers of both trace forms as "#".
QString withoutLineNumbers(const QString &trace);
/// The two trace forms as they come out of withoutLineNumbers(). The long form begins with a line break.
QString shortTrace(const QString &source, const QString &function);
QString longTrace(const QString &source, const QString &function, const QString &message);
