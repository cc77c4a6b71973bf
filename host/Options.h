// The command line.
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace host {

struct Options {
    QString backend;
    QString stateDirectory;      ///< empty keeps the state in memory
    bool stateGiven = false;     ///< --state was on the command line
    std::optional<int> keptDays; ///< how long calls are kept; nothing for ever
    QString traceFile;           ///< "-" is standard output, empty drops the trace
    QString plugin;
    QString screen;            ///< name of the screen to open at once; empty for the menu
    int page = 0;              ///< row of pageNames that the panel shows
    QString translation;       ///< catalogue to load; empty for none
    QString language;          ///< one of languageNames(); empty for the locale's
    QString skin;              ///< "light" or "dark"; empty for the desktop's
    bool displayAlone = false; ///< the phone's display fills the window
    QString photo;             ///< where to photograph the window; empty shows it as usual
    QString tourDirectory;     ///< where a tour puts its photographs; empty for no tour
    QString script;            ///< what the tour plays

    bool isTour() const { return !tourDirectory.isEmpty(); }
    /// Of a tour, which takes no language from the locale.
    bool isInEnglish() const { return translation.isEmpty() && (language.isEmpty() || language == u"en"); }
};

struct CommandLine {
    std::optional<Options> options; ///< null when there is nothing more to do
    QString output;                 ///< then: for standard output
    QString error;                  ///< then: for the user; the program ends with ExitBadCommandLine
};

/// Reads `arguments`, the first of which is the program's name. Needs an application object, asks nothing of the
/// handset. Help and mistakes are in the language for the user of `arguments`.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace host
