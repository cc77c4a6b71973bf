// What the operations of a scripted telephone answer, as data.
#pragma once

#include "Journal.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <any>
#include <functional>
#include <map>
#include <string_view>
#include <tuple>

/// Answers for operations named as text ("CallLog::lastCallTime"). An operation that nobody scripted succeeds and
/// answers zeroes. Operations have to be made known first, so that a misspelt name ends the test program at once
/// instead of scripting nothing.
class Script
{
public:
    void makeKnown(const char *operation) { steps[operation]; }
    QStringList operations() const;

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

    /// For the roles: records the call and plays its answer. Outputs are written on success only.
    template <typename... Outputs>
    int play(const char *operation, Outputs &...outputs)
    {
        return playWith(operation, QString(), outputs...);
    }
    /// The same for an operation with arguments, which appear behind its name in the journal.
    template <typename... Outputs>
    int playWith(const char *operation, const QString &arguments, Outputs &...outputs)
    {
        const Step &step = begin(operation, arguments);
        if (step.status == 0 && step.outputs.has_value())
            writeOutputs(operation, step.outputs, outputs...);
        return step.status;
    }

private:
    struct Step {
        int status = 0;
        std::any outputs;
        std::function<void()> effect;
    };

    template <typename... Outputs>
    static void writeOutputs(const char *operation, const std::any &scripted, Outputs &...outputs)
    {
        const auto *values = std::any_cast<std::tuple<Outputs...>>(&scripted);
        if (!values)
            qFatal("%s is scripted with outputs of other types than it has", operation);
        std::tie(outputs...) = *values;
    }

    Step &known(std::string_view operation);
    const Step &begin(const char *operation, const QString &arguments);

    std::map<std::string_view, Step> steps;
};
