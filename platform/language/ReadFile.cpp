#include "language/ReadFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace language {

QString readFile(const QString &file, qint64 limit, QByteArray &bytes)
{
    if (!QFileInfo::exists(file))
        return QCoreApplication::translate("ReadFile", "there is none");
    if (!QFileInfo(file).isFile())
        return QCoreApplication::translate("ReadFile", "it is no file");
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return source.errorString();
    bytes = source.read(limit + 1);
    if (source.error() != QFileDevice::NoError)
        return source.errorString();
    if (bytes.size() > limit)
        return QCoreApplication::translate("ReadFile", "it is larger than %1 MiB")
            .arg(limit / (qint64{1024} * 1024));
    return {};
}

} // namespace language
