#include "meter/Table.h"

#include "meter/Text.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QVariant>

#include <algorithm>
#include <cstdio>

namespace meter {

namespace {

QByteArray printJson(const Table &table)
{
    QJsonArray rows;
    for (const QList<Cell> &cells : table.rows) {
        QJsonObject row;
        for (qsizetype i = 0; i < cells.size(); ++i)
            row.insert(table.columns[i], cells[i].value);
        rows.append(row);
    }
    return QJsonDocument(rows).toJson(QJsonDocument::Indented);
}

QString quoted(QString field)
{
    const bool isPlain = std::none_of(field.begin(), field.end(),
                                      [](QChar c) { return c == u',' || c == u'"' || c == u'\n' || c == u'\r'; });
    return isPlain ? field : u'"' + field.replace(u'"', QLatin1String("\"\"")) + u'"';
}

QByteArray printCsv(const Table &table)
{
    QString text;
    const auto addLine = [&text](const QStringList &fields) { text += fields.join(u',') + QLatin1String("\r\n"); };
    addLine(table.columns);
    for (const QList<Cell> &cells : table.rows) {
        QStringList fields;
        for (const Cell &cell : cells)
            fields << quoted(cell.value.toVariant().toString());
        addLine(fields);
    }
    return text.toUtf8();
}

// How many places of a terminal it takes: a Han character two.
qsizetype widthOf(const QString &text)
{
    return text.size() + std::count_if(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x2e80; });
}

// Columns are as wide as their longest text.
QByteArray printTable(const Table &table)
{
    QList<QStringList> lines{table.columns};
    for (const QList<Cell> &cells : table.rows) {
        QStringList line;
        for (const Cell &cell : cells)
            line << cell.text;
        lines << line;
    }
    QList<qsizetype> widths(table.columns.size(), 0);
    for (const QStringList &line : lines)
        for (qsizetype i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(line[i]));
    QString text;
    for (const QStringList &line : lines) {
        QString row;
        for (qsizetype i = 0; i < line.size(); ++i)
            row += line[i] + QString(widths[i] + 2 - widthOf(line[i]), u' ');
        while (row.endsWith(u' '))
            row.chop(1);
        text += row + u'\n';
    }
    return text.toUtf8();
}

} // namespace

Cell timeCell(qint64 ms)
{
    const qint64 seconds = ms / 1000;
    const auto two = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString text = two(seconds / 3600) + u':' + two(seconds / 60 % 60) + u':' + two(seconds % 60);
    return {text, seconds};
}

Cell numberCell(qint64 number)
{
    return {QString::number(number), number};
}

Cell textCell(const QString &text)
{
    return {text, text};
}

Cell wordCell(const char *english)
{
    return {Text::tr(english), QString::fromLatin1(english)};
}

Cell notAvailable()
{
    return {Text::tr("not available"), QJsonValue::Null};
}

QByteArray print(const Table &table, Format format)
{
    switch (format) {
    case Format::Table:
        return printTable(table);
    case Format::Json:
        return printJson(table);
    case Format::Csv:
        return printCsv(table);
    }
    return {};
}

bool write(const QByteArray &text)
{
    const auto length = static_cast<size_t>(text.size());
    return std::fwrite(text.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0;
}

} // namespace meter
