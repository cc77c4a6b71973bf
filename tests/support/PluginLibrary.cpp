#include "support/PluginLibrary.h"

#include <QtCore/QCoreApplication>

QString libraryDirectory()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/../lib");
}

PluginLibrary::PluginLibrary()
    : library(libraryDirectory() + QLatin1String("/kavcallmeter"), 1)
{
    library.load();
}
