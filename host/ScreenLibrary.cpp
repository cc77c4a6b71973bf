#include "host/ScreenLibrary.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>

#include <dlfcn.h>

namespace host {

namespace {

// Beside the library that this is part of, as they are installed together; else in lib beside the program's folder.
QString installedPath(const QString &name)
{
    Dl_info own{};
    if (::dladdr(reinterpret_cast<const void *>(&installedPath), &own)) {
        QString beside = QFileInfo(QFile::decodeName(own.dli_fname)).absoluteDir().filePath(name);
        if (QFile::exists(beside))
            return beside;
    }
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../lib/" + name);
}

bool loadInstalled(QLibrary &library, const QString &name)
{
    library.setFileName(installedPath(name));
    return library.load();
}

QString loadLibrary(QLibrary &library, const QString &name)
{
    library.setFileName(name);
    if (library.load())
        return {};
    const QString reason = library.errorString();
    if (name.contains(u'/'))
        return QStringLiteral("The plug-in library \"%1\" cannot be loaded: %2").arg(name, reason);
    if (loadInstalled(library, name))
        return {};
    return QStringLiteral("The plug-in library \"%1\" cannot be loaded: %2; %3")
        .arg(name, reason, library.errorString());
}

template <typename Function>
QString resolve(QLibrary &library, const char *symbol, Function *&function)
{
    function = reinterpret_cast<Function *>(library.resolve(symbol));
    if (function)
        return {};
    return QStringLiteral("The plug-in library \"%1\" has no function \"%2\".")
        .arg(library.fileName(), QLatin1StringView(symbol));
}

} // namespace

int screenIndex(const QString &name)
{
    for (std::size_t index = 0; index < screenTable.size(); ++index) {
        if (name == QLatin1StringView(screenTable[index].name))
            return static_cast<int>(index);
    }
    return -1;
}

QString ScreenLibrary::load(const QString &name)
{
    QLibrary library;
    // What the library and those that it needs lack is found now, and not when a screen calls it.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (QString problem = loadLibrary(library, name); !problem.isEmpty())
        return problem;
    for (std::size_t index = 0; index < screenTable.size(); ++index) {
        const ScreenEntry &entry = screenTable[index];
        if (QString problem = resolve(library, entry.create, resolved[index].create); !problem.isEmpty())
            return problem;
        if (QString problem = resolve(library, entry.destroy, resolved[index].destroy); !problem.isEmpty())
            return problem;
    }
    return {};
}

} // namespace host
