#include "Script.h"

QStringList Script::operations() const
{
    QStringList names;
    for (const auto &[operation, step] : steps)
        names.append(QString::fromLatin1(operation.data(), static_cast<qsizetype>(operation.size())));
    return names;
}

void Script::failAll(int status)
{
    for (auto &[operation, step] : steps)
        step.status = status;
}

Script::Step &Script::known(std::string_view operation)
{
    const auto found = steps.find(operation);
    if (found == steps.end())
        qFatal("no scripted telephone has an operation %s", operation.data());
    return found->second;
}

const Script::Step &Script::begin(const char *operation, const QString &arguments)
{
    Step &step = known(operation);
    const QString name = QString::fromLatin1(operation);
    Journal::shared().record(arguments.isNull() ? name : name + QLatin1Char('(') + arguments + QLatin1Char(')'));
    const std::function<void()> effect = step.effect; // which may script this very operation anew
    if (effect)
        effect();
    return step;
}
