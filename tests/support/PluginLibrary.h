// The plug-in as a host has it: a shared object loaded by name.
#pragma once

#include <QtCore/QLibrary>
#include <QtCore/QString>

/// The directory of the built libraries, beside the one of the test programs.
QString libraryDirectory();

/// libkavcallmeter.so.1, loaded when made. It stays loaded when this goes; unload() asks for the opposite.
class PluginLibrary
{
public:
    PluginLibrary();

    bool isLoaded() const { return library.isLoaded(); }
    bool unload() { return library.unload(); }
    QString error() const { return library.errorString(); }
    QString fileName() const { return library.fileName(); }

    /// The exported function `name` as a `Function` (a function type), or null.
    template <typename Function>
    Function *function(const char *name)
    {
        return reinterpret_cast<Function *>(library.resolve(name));
    }

private:
    QLibrary library;
};

/// A screen made and deleted by the plug-in's exported functions.
template <typename View>
class HostedScreen
{
public:
    /// `names`: what follows create_ and destroy_, "callTime".
    explicit HostedScreen(const char *names, QWidget *parent = nullptr, const char *name = nullptr)
        : destroyFunction(library.function<void(View *)>(QByteArray("destroy_").append(names).constData()))
    {
        auto *create =
            library.function<View *(QWidget *, const char *)>(QByteArray("create_").append(names).constData());
        if (!create || !destroyFunction)
            qFatal("the plug-in exports no pair of functions for %s: %s", names, qUtf8Printable(library.error()));
        screen = create(parent, name);
    }
    ~HostedScreen() { destroy(); }
    Q_DISABLE_COPY_MOVE(HostedScreen)

    void destroy() { destroyFunction(std::exchange(screen, nullptr)); }
    View *get() const { return screen; }
    View *operator->() const { return screen; }

private:
    PluginLibrary library;
    void (*destroyFunction)(View *);
    View *screen = nullptr;
};
