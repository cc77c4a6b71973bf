#include "support/TraceCapture.h"

#include "log/aplog.h"

#include <QtCore/QRegularExpression>

#include <cstdlib>

TraceCapture::TraceCapture()
    : previous(libaplog_to_module_ptr)
    , stream(open_memstream(&buffer, &size))
{
    if (!stream)
        qFatal("no memory for a trace stream");
    libaplog_to_module_ptr = stream;
}

TraceCapture::~TraceCapture()
{
    libaplog_to_module_ptr = previous;
    std::fclose(stream);
    std::free(buffer);
}

QString TraceCapture::text() const
{
    std::fflush(stream);
    return QString::fromLatin1(buffer + taken, static_cast<qsizetype>(size - taken));
}

QString TraceCapture::take()
{
    const QString trace = withoutLineNumbers(text());
    taken = size;
    return trace;
}

TraceSink::TraceSink()
    : previous(libaplog_to_module_ptr)
    , sink(std::fopen("/dev/null", "w"))
{
    if (!sink)
        qFatal("/dev/null cannot be opened");
    libaplog_to_module_ptr = sink;
}

TraceSink::~TraceSink()
{
    libaplog_to_module_ptr = previous;
    std::fclose(sink);
}

QString withoutLineNumbers(const QString &trace)
{
    static const QRegularExpression shortForm(QStringLiteral("^([^,\n]+,[^,\n]+),[1-9][0-9]* $"),
                                              QRegularExpression::MultilineOption);
    static const QRegularExpression longForm(QStringLiteral("^([^,\n]+, [^,\n]+), [1-9][0-9]*: \""),
                                             QRegularExpression::MultilineOption);
    QString text = trace;
    text.replace(shortForm, QStringLiteral("\\1,# "));
    text.replace(longForm, QStringLiteral("\\1, #: \""));
    return text;
}

QString shortTrace(const QString &source, const QString &function)
{
    return source + QLatin1Char(',') + function + QLatin1String(",# \n");
}

QString longTrace(const QString &source, const QString &function, const QString &message)
{
    return QLatin1Char('\n') + source + QLatin1String(", ") + function + QLatin1String(", #: \"") + message +
           QLatin1String("\"\n");
}
