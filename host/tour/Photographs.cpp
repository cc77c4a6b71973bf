#include "host/tour/Photographs.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtGui/QImageWriter>

namespace host::tour {

namespace {

// "Call Times" -> "call-times", in any script
QString fileNamePart(const QString &name)
{
    static const QRegularExpression unusable(QStringLiteral("[^\\p{L}\\p{M}\\p{N}]+"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    QString part = name.toLower().replace(unusable, QStringLiteral("-"));
    while (part.startsWith(u'-'))
        part.remove(0, 1);
    while (part.endsWith(u'-'))
        part.chop(1);
    return part.isEmpty() ? QStringLiteral("screen") : part;
}

} // namespace

Photographs::Photographs(const QString &where)
    : directory(where)
{}

QString Photographs::prepare() const
{
    const QString problem = QStringLiteral("The directory \"%1\" for the photographs %2.");
    if (!QDir().mkpath(directory))
        return problem.arg(directory, QStringLiteral("cannot be made"));
    return {};
}

QString Photographs::takeNumbered(const QImage &image, const QString &name, QString &file)
{
    for (const Taken &earlier : std::as_const(taken)) {
        if (earlier.image == image) {
            file = earlier.file;
            return {};
        }
    }
    file = QStringLiteral("%1-%2.png").arg(++lastNumber, 2, 10, QLatin1Char('0')).arg(fileNamePart(name));
    return write(image, file);
}

QString Photographs::takeNamed(const QImage &image, const QString &name, QString &file)
{
    file = name + QStringLiteral(".png");
    return write(image, file);
}

QString Photographs::write(const QImage &image, const QString &file)
{
    QImageWriter writer(QDir(directory).filePath(file), "png");
    if (!writer.write(image))
        return QStringLiteral("The photograph \"%1\" cannot be written: %2.")
            .arg(writer.fileName(), writer.errorString());
    taken.removeIf([&](const Taken &earlier) { return earlier.file == file; }); // written over
    taken.append({file, image});
    return {};
}

} // namespace host::tour
