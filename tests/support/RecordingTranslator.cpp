#include "support/RecordingTranslator.h"

#include "support/Journal.h"

#include <QtCore/QCoreApplication>

#include <utility>

RecordingTranslator::RecordingTranslator()
{
    QCoreApplication::installTranslator(this);
}

RecordingTranslator::~RecordingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QList<RecordingTranslator::Request> RecordingTranslator::take()
{
    return std::exchange(requests, {});
}

QString RecordingTranslator::translate(const char *context, const char *key, const char *comment, int) const
{
    const QString keyText = QString::fromUtf8(key);
    const bool isQtsOwn = context[0] == 'Q' && qstrcmp(context, "QObject") != 0;
    if (!isQtsOwn) {
        requests.append({QString::fromUtf8(context), keyText, QString::fromUtf8(comment)});
        if (journalled)
            Journal::shared().record(QStringLiteral("translate \"%1\"").arg(keyText));
    }
    return texts.value(keyText);
}

QStringList lines(const QList<RecordingTranslator::Request> &requests)
{
    QStringList texts;
    for (const auto &request : requests)
        texts.append(request.context + QLatin1String(", ") + request.key + QLatin1String(", ") + request.comment);
    return texts;
}
