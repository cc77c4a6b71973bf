// What the program shows: rows of cells, as a person or a program reads them.
#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

namespace meter {

enum class Format { Table, Json, Csv };

struct Cell {
    QString text;     ///< for a person; empty for nothing
    QJsonValue value; ///< for a program; null for what is not available
};

/// `ms` as whole seconds, the fraction cut off: "00:01:05", and 65.
Cell timeCell(qint64 ms);
Cell numberCell(qint64 number);
/// A text for both.
Cell textCell(const QString &text);
/// A word of the program's own, which a person reads translated and a program in English.
Cell wordCell(const char *english);
Cell notAvailable();

struct Table {
    QList<QString> columns; ///< the names that a program knows the cells by
    QList<QList<Cell>> rows;
};

/// The table as text that ends with a newline. JSON is an array of objects, one a row; CSV is that of RFC 4180, with the
/// columns' names in the first line.
QByteArray print(const Table &table, Format format);

/// Writes to standard output; false when nobody takes it.
bool write(const QByteArray &text);

} // namespace meter
