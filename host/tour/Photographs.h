// The photographs of a tour.
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QImage>

namespace host::tour {

/// Writes PNG files into one directory.
class Photographs
{
public:
    explicit Photographs(const QString &directory);

    /// Makes the directory. Returns why it cannot be had, a null text on success.
    QString prepare() const;

    /// Writes `image` under a running number and `name`, unless the same picture has been written already. `file`
    /// gets the name of the file that shows it. Returns why it could not be written, a null text on success.
    QString takeNumbered(const QImage &image, const QString &name, QString &file);
    /// Writes `image` as `name`.png in any case.
    QString takeNamed(const QImage &image, const QString &name, QString &file);

    int count() const { return static_cast<int>(taken.size()); }

private:
    QString write(const QImage &image, const QString &file);

    QString directory;
    struct Taken {
        QString file;
        QImage image;
    };
    QList<Taken> taken; // in their order
    int lastNumber = 0;
};

} // namespace host::tour
