#include "bench/Report.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QSysInfo>
#include <QtCore/QThread>

#include <cstdio>

namespace bench {

namespace {

std::string metText(const Summary &summary)
{
    std::string text = std::to_string(summary.met) + " of " + std::to_string(summary.bars) + " bars met";
    if (summary.unjudged > 0)
        text += "; " + std::to_string(summary.unjudged) + " more are on times, which this run did not take";
    return text + ".";
}

void printSide(const SideLine &line)
{
    std::printf("  %-34s %12s %7s  %-22s %-8s %9s  %s\n", line.label.c_str(), line.instructions.c_str(),
                line.ratio.c_str(), line.bar.c_str(), line.met.c_str(), line.time.c_str(), line.timeRatio.c_str());
}

void printRow(const RowLines &row)
{
    std::printf("%s\n", row.name.c_str());
    if (!row.error.empty())
        std::printf("  NOT MEASURED: %s\n", row.error.c_str());
    for (const SideLine &side : row.sides)
        printSide(side);
    for (const std::string &note : row.notes)
        std::printf("    %s\n", note.c_str());
}

void printMemory(const Summary &summary)
{
    std::printf("\n%-24s %-10s %15s %15s %14s  %s\n", "Opened and destroyed", "Memory",
                ("after " + std::to_string(summary.warmUp)).c_str(),
                ("after " + std::to_string(summary.warmUp + summary.cycles)).c_str(), "per cycle", "Bar");
    for (const MemoryLine &line : summary.memory) {
        std::printf("%-24s %-10s %15s %15s %14s  %-8s  %s\n", line.screen.c_str(), line.memory.c_str(),
                    line.before.c_str(), line.after.c_str(), line.growth.c_str(), line.bar.c_str(),
                    line.met.c_str());
        if (!line.note.empty())
            std::printf("  %s\n", line.note.c_str());
    }
}

// --- a page of the manual

QString processor()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return QSysInfo::currentCpuArchitecture();
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("model name"))
            return QString::fromUtf8(line.mid(line.indexOf(':') + 1).trimmed());
    }
    return QSysInfo::currentCpuArchitecture();
}

QString tableRow(const std::vector<std::string> &cells)
{
    QString row = QStringLiteral("|");
    for (const std::string &cell : cells)
        row += u' ' + QString::fromStdString(cell).replace(u'|', QStringLiteral("\\|")) + QStringLiteral(" |");
    return row + u'\n';
}

QString rowsOf(const RowLines &row)
{
    if (!row.error.empty())
        return tableRow({row.name, "not measured: " + row.error, "", "", "", "", ""});
    QString rows;
    std::string name = row.name;
    for (const SideLine &side : row.sides) {
        const std::string bar = side.bar.empty() ? "" : side.bar + ": " + side.met;
        rows += tableRow({name, side.label, side.instructions, side.ratio, bar, side.time, side.timeRatio});
        name.clear();
    }
    return rows;
}

QString page(const Summary &summary, int repetitions)
{
    const QString times = repetitions > 0 ? QStringLiteral("medians of %1 times").arg(repetitions)
                                          : QStringLiteral("times were not taken");
    QString text =
        QStringLiteral(
            "# Results of the benchmarks\n\n"
            "Written by `scripts/bench --markdown`; [benchmarks.md](benchmarks.md) says how to read it.\n"
            "Instructions of one operation; %1. %2 processors, %3, Qt %4.\n\n")
            .arg(times)
            .arg(QThread::idealThreadCount())
            .arg(processor(), QString::fromLatin1(qVersion()));
    text += tableRow({"Row", "Side", "Instructions", "Ratio", "Bar", "Time", "Ratio"});
    text += QStringLiteral("|---|---|---|---|---|---|---|\n");
    for (const RowLines &row : summary.rows)
        text += rowsOf(row);
    if (!summary.memory.empty()) {
        text +=
            QStringLiteral("\nScreens opened and destroyed %1 times.\n\n").arg(summary.warmUp + summary.cycles);
        text += tableRow(
            {"Screen", "Memory", "After " + std::to_string(summary.warmUp), "At the end", "A cycle", "Bar"});
        text += QStringLiteral("|---|---|---|---|---|---|\n");
    }
    for (const MemoryLine &line : summary.memory)
        text +=
            tableRow({line.screen, line.memory, line.before, line.after, line.growth, line.bar + ": " + line.met});
    return text + QStringLiteral("\n%1\n").arg(QString::fromStdString(metText(summary)));
}

} // namespace

void print(const Summary &summary, int repetitions)
{
    std::printf("Instructions of one operation, and times: each side %d times, taking turns.\n", repetitions);
    if (!summary.rows.empty()) {
        std::printf("\n");
        printSide({"", "Instructions", "Ratio", "Bar", "", "Time", "Ratio"});
    }
    for (const RowLines &row : summary.rows)
        printRow(row);
    if (!summary.memory.empty())
        printMemory(summary);
    std::printf("\n%s\n", metText(summary).c_str());
    if (summary.unmeasured > 0)
        std::printf("%d rows could not be measured.\n", summary.unmeasured);
}

bool writePage(const QString &file, const Summary &summary, int repetitions)
{
    QFile out(file);
    const QByteArray text = page(summary, repetitions).toUtf8();
    return out.open(QIODevice::WriteOnly) && out.write(text) == text.size() && out.flush();
}

} // namespace bench
