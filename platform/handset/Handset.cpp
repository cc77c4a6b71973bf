#include "handset/Handset.h"

#include "calllog/Finding.h"
#include "calllog/StateDirectory.h"
#include "handset/Backend.h"
#include "handset/CallLog.h"
#include "handset/CallRetention.h"
#include "handset/CallService.h"
#include "handset/Clock.h"
#include "handset/DataCalls.h"
#include "handset/PacketData.h"
#include "handset/UpdateBroadcast.h"
#include "simulated/SimulatedBackend.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <functional>
#include <utility>
#include <vector>

namespace handset {

namespace {

Q_LOGGING_CATEGORY(lcHandset, "kav.handset")

/// A backend: built in (`open`), or in a library that is loaded on demand (`library`).
struct Backend {
    const char *name;
    Opened (*open)(const Settings &settings); ///< is given a clock; null for one in a library
    const char *library;
};

constexpr std::array backends{
    Backend{"simulated", &simulated::open, nullptr},
    Backend{"modemmanager", nullptr, "libkavhandset-modemmanager.so"},
    Backend{"ofono", nullptr, "libkavhandset-ofono.so"},
};
constexpr QLatin1StringView libraryStart("libkavhandset-");
constexpr QLatin1StringView libraryEnd(".so");

const Backend *findBackend(const QString &name)
{
    const auto *const found = std::find_if(backends.begin(), backends.end(), [&](const Backend &backend) {
        return name == QLatin1String(backend.name);
    });
    return found == backends.end() ? nullptr : found;
}

// Where backends are installed, ours and those of others: beside the library that this is.
QString backendDirectory()
{
    Dl_info library{};
    if (!::dladdr(&backends, &library))
        return {};
    return QFileInfo(QFile::decodeName(library.dli_fname)).absolutePath() +
           QStringLiteral("/kavcallmeter/backends");
}

// Those that are installed beside ours, by their names.
QStringList addedBackends()
{
    QStringList names;
    const QStringList files = QDir(backendDirectory()).entryList(QDir::Files);
    for (const QString &file : files) {
        if (!file.startsWith(libraryStart) || !file.endsWith(libraryEnd))
            continue;
        const QString name = file.chopped(libraryEnd.size()).sliced(libraryStart.size());
        if (!findBackend(name))
            names << name;
    }
    return names;
}

// Null for one that is built in.
QString libraryOf(const QString &name)
{
    const Backend *const backend = findBackend(name);
    return backend ? QString::fromLatin1(backend->library) : libraryStart + name + libraryEnd;
}

Opened cannotBeUsed(const QString &library, const QString &reason)
{
    return {nullptr, QStringLiteral("The telephone \"%1\" cannot be used: %2.").arg(library, reason), {}};
}

// `library` is looked for where backends are installed, then beside this library, unless it is a path. It stays loaded, as
// what it has opened may outlive every moment at which it could be unloaded.
void *load(const QString &library)
{
    const QString installed = backendDirectory() + QLatin1Char('/') + library;
    const bool isInstalled = !library.contains(QLatin1Char('/')) && QFile::exists(installed);
    const QByteArray file = QFile::encodeName(isInstalled ? installed : library);
    return ::dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
}

// What the library of a backend has under that name; null where there is none.
template <typename Function>
Function exported(const QString &backend, const char *name)
{
    const QString library = libraryOf(backend);
    void *const handle = library.isEmpty() ? nullptr : load(library);
    return handle ? reinterpret_cast<Function>(::dlsym(handle, name)) : nullptr;
}

/// A handset, and what limits how long it keeps calls.
struct Limited {
    std::shared_ptr<Handset> handset;
    CallRetention retention;
};

std::shared_ptr<Handset> limited(std::shared_ptr<Handset> handset, const Settings &settings)
{
    if (!handset || !settings.keptDays)
        return handset;
    Handset &shown = *handset;
    const auto both = std::shared_ptr<Limited>(
        new Limited{std::move(handset), CallRetention(shown, *settings.keptDays, settings.clock)});
    return {both, &shown};
}

Opened openFrom(const QString &library, const Settings &settings)
{
    void *const handle = load(library);
    if (!handle)
        return cannotBeUsed(library, QString::fromLocal8Bit(::dlerror()));
    const auto version = reinterpret_cast<int (*)()>(::dlsym(handle, "kavHandsetInterfaceVersion"));
    const auto open = reinterpret_cast<OpenBackend>(::dlsym(handle, "kavOpenHandset"));
    if (!version || !open)
        return cannotBeUsed(library, QStringLiteral("it has no handset"));
    if (version() != interfaceVersion) {
        const QString other =
            QStringLiteral("it was built for version %1 of the interface, and this is version %2");
        return cannotBeUsed(library, other.arg(version()).arg(interfaceVersion));
    }
    Opened opened;
    open(settings, opened);
    return opened;
}

/// What the phone's libraries talk to.
struct Installation {
    std::shared_ptr<Handset> handset;
    bool decided = false; ///< by install() or by the first current()
};

Installation &installation()
{
    static auto *const instance = new Installation; // outlives every static that may still ask
    return *instance;
}

// The handset has a timer and a database connection, which must go before the application object does.
void releaseWithApplication()
{
    installation() = {};
}

// Screens read the installed handset: what happens to another is none of their business.
void setBroadcasting(const std::shared_ptr<Handset> &handset, const std::function<void()> &update,
                     const std::function<void()> &change)
{
    if (PacketData *const packets = handset ? handset->packetData() : nullptr)
        packets->setUpdateListener(update);
    if (handset)
        handset->setChangeListener(change);
}

void tellOfChange()
{
    if (installation().handset)
        installation().handset->changedElsewhere();
}

void decide(std::shared_ptr<Handset> handset)
{
    static bool registered = false;
    if (!registered) {
        registered = true;
        qAddPostRoutine([] {
            registered = false;
            releaseWithApplication();
        });
    }
    // The previous handset goes last: its end must find the new one installed.
    const auto previous = std::exchange(installation().handset, std::move(handset));
    installation().decided = true;
    setBroadcasting(previous, nullptr, nullptr);
    setBroadcasting(installation().handset, &broadcastUpdate, &broadcastChange);
    followChanges(installation().handset ? std::function<void()>(&tellOfChange) : nullptr);
}

void openDefault()
{
    Settings settings;
    settings.stateDirectory = defaultStateDirectory();
    settings.tell = [](const QString &notice) { qCWarning(lcHandset, "%s", qUtf8Printable(notice)); };
    Opened opened = open(settings);
    if (!opened.error.isEmpty())
        qCWarning(lcHandset, "%s", qUtf8Printable(opened.error));
    if (!opened.notice.isEmpty())
        qCWarning(lcHandset, "%s", qUtf8Printable(opened.notice));
    decide(std::move(opened.handset));
}

} // namespace

QStringList backendNames()
{
    QStringList names;
    for (const Backend &backend : backends)
        names << QString::fromLatin1(backend.name);
    return names + addedBackends();
}

QString presentBackend(const Patience &patience)
{
    const QStringList names = backendNames();
    for (const QString &name : names) {
        const auto isPresent = exported<IsPresent>(name, "kavHandsetIsPresent");
        if (isPresent && isPresent(patience.operation))
            return name;
    }
    return QString::fromLatin1(backends.front().name);
}

Awaited awaitModem(const std::function<void(const QString &backend)> &here)
{
    const auto watches = std::make_shared<std::vector<std::shared_ptr<void>>>();
    QString error = QStringLiteral("There is no telephone that has a modem.");
    bool isBusThere = false;
    const QStringList names = backendNames();
    for (const QString &name : names) {
        const auto await = exported<Await>(name, "kavHandsetAwait");
        if (!await)
            continue;
        Awaited awaited;
        await([here, name] { here(name); }, awaited);
        if (awaited.watch)
            watches->push_back(std::move(awaited.watch));
        if (awaited.error.isEmpty())
            isBusThere = true;
        else
            error = awaited.error;
    }
    return watches->empty() ? Awaited{nullptr, error} : Awaited{watches, isBusThere ? QString() : error};
}

PutAside putAside(const QString &stateDirectory)
{
    const QString name = QString::fromLatin1(calllog::databaseName);
    QString error;
    calllog::Waiting waiting(0, nullptr);
    const std::unique_ptr<calllog::StateDirectory> directory =
        calllog::StateDirectory::open(stateDirectory, waiting, error);
    if (!directory || directory->takeAlone(0, waiting, error) != 0)
        return {{}, error};
    if (directory->find(name) == ENOENT)
        return {};
    const QString kept = directory->unusedName(name);
    const int failure = kept.isNull() ? EEXIST : directory->keepAside(name, kept);
    if (failure != 0)
        return {{}, QString::fromLocal8Bit(std::strerror(failure))};
    return {kept, {}};
}

Opened open(const Settings &settings)
{
    if (settings.backend == QLatin1String("auto")) {
        Settings found = settings;
        found.backend = presentBackend(settings.patience);
        return open(found);
    }
    const bool isPath = settings.backend.contains(QLatin1Char('/'));
    if (!isPath && !findBackend(settings.backend) && !addedBackends().contains(settings.backend)) {
        const QString error = QStringLiteral("There is no telephone named \"%1\"; those there are: %2.");
        return {nullptr, error.arg(settings.backend, backendNames().join(QStringLiteral(", "))), {}};
    }
    // Made here for every backend: whoever opens a handset keeps more there than a backend does.
    if (QString error;
        !settings.stateDirectory.isEmpty() && !calllog::StateDirectory::make(settings.stateDirectory, error))
        return {nullptr, error, {}};
    Settings complete = settings;
    if (!complete.clock)
        complete.clock = std::make_shared<SystemClock>();
    const Backend *const builtIn = findBackend(settings.backend);
    Opened opened = builtIn && builtIn->open
                        ? builtIn->open(complete)
                        : openFrom(isPath ? settings.backend : libraryOf(settings.backend), complete);
    opened.handset = limited(std::move(opened.handset), complete);
    return opened;
}

QString defaultStateDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/kavcallmeter");
}

void install(std::shared_ptr<Handset> handset)
{
    decide(std::move(handset));
}

std::shared_ptr<Handset> current()
{
    if (!installation().decided)
        openDefault();
    return installation().handset;
}

} // namespace handset
