// What the operations of a scripted handset answer, as data.
#pragma once

#include "handset/Operations.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <any>
#include <array>
#include <functional>
#include <string_view>
#include <tuple>
#include <type_traits>

/// Answers for operations named as text ("CallLog::lastCallTime"). An operation that nobody scripted succeeds and
/// answers zeroes. A misspelt name ends the test program at once instead of scripting nothing.
class Script
{
public:
    /// From now on `operation` succeeds with these outputs, whose types are those of its parameters.
    template <typename... Outputs>
    void answer(const char *operation, Outputs... outputs)
    {
        Step &step = known(operation);
        step.status = 0;
        step.outputs = std::tuple<Outputs...>(std::move(outputs)...);
    }
    /// From now on `operation` answers `status`; its outputs come back with succeed().
    void fail(const char *operation, int status) { known(operation).status = status; }
    void succeed(const char *operation) { fail(operation, 0); }
    void failAll(int status);
    /// Runs whenever `operation` is called, before it answers.
    void whenCalled(const char *operation, std::function<void()> effect) { known(operation).effect = effect; }

    /// Records the call of a row of handset::operationNames and plays its answer. Arguments that are const go in and
    /// appear behind the name in the journal; the others are written, on success only.
    template <typename... Arguments>
    int play(int operation, Arguments &...arguments)
    {
        record(operation, arguments...);
        const Step &step = begin(operation);
        if (step.status == 0 && step.outputs.has_value())
            writeOutputs(operation, step.outputs, std::tuple_cat(ifOutput(arguments)...));
        return step.status;
    }
    /// The line of the journal alone.
    template <typename... Arguments>
    static void record(int operation, Arguments &...arguments)
    {
        QStringList inputs;
        (addInput(inputs, arguments), ...);
        recordLine(operation, inputs);
    }

private:
    struct Step {
        int status = 0;
        std::any outputs;
        std::function<void()> effect;
    };

    static QString textOf(quint8 number) { return QString::number(number); }
    static QString textOf(const QString &text) { return text; }
    static QString textOf(const QByteArray &text) { return QString::fromLatin1(text); }

    template <typename Argument>
    static void addInput(QStringList &inputs, Argument &argument)
    {
        if constexpr (std::is_const_v<Argument>)
            inputs.append(textOf(argument));
    }
    template <typename Argument>
    static auto ifOutput(Argument &argument)
    {
        if constexpr (std::is_const_v<Argument>)
            return std::tuple<>();
        else
            return std::tie(argument);
    }
    template <typename... Outputs>
    static void writeOutputs(int operation, const std::any &scripted, std::tuple<Outputs &...> outputs)
    {
        const auto *values = std::any_cast<std::tuple<Outputs...>>(&scripted);
        if (!values)
            qFatal("%s is scripted with outputs of other types than it has",
                   handset::operationNames[static_cast<std::size_t>(operation)]);
        outputs = *values;
    }

    static void recordLine(int operation, const QStringList &inputs);
    Step &known(std::string_view operation);
    const Step &begin(int operation);

    std::array<Step, handset::operationNames.size()> steps;
};
