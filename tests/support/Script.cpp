#include "support/Script.h"

#include "support/Journal.h"

void Script::failAll(int status)
{
    for (Step &step : steps)
        step.status = status;
}

Script::Step &Script::known(std::string_view operation)
{
    const int index = handset::operationIndex(operation);
    if (index < 0)
        qFatal("no telephone has an operation %s", operation.data());
    return steps[static_cast<std::size_t>(index)];
}

void Script::recordLine(int operation, const QStringList &inputs)
{
    const QString name = QString::fromLatin1(handset::operationNames[static_cast<std::size_t>(operation)]);
    const QString text = inputs.size() == 1 ? inputs.first() : inputs.join(QStringLiteral(", "));
    Journal::shared().record(text.isNull() ? name : name + QLatin1Char('(') + text + QLatin1Char(')'));
}

const Script::Step &Script::begin(int operation)
{
    const Step &step = steps[static_cast<std::size_t>(operation)];
    const std::function<void()> effect = step.effect; // which may script this very operation anew
    if (effect)
        effect();
    return step;
}
