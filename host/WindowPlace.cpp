#include "host/WindowPlace.h"

#include "language/ReadFile.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QWidget>

namespace host {

namespace {

constexpr qint64 most = 1024;

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/kavcallmeter");
}

QString fileIn(const QString &place)
{
    return place + QStringLiteral("/window");
}

} // namespace

void takePlace(QWidget &window)
{
    QByteArray kept;
    if (language::readFile(fileIn(folder()), most, kept).isEmpty())
        window.restoreGeometry(kept);
}

void keepPlace(const QWidget &window)
{
    const QString place = folder();
    QSaveFile file(fileIn(place));
    if (!QDir().mkpath(place) || !file.open(QIODevice::WriteOnly))
        return;
    file.write(window.saveGeometry());
    file.commit();
}

} // namespace host
