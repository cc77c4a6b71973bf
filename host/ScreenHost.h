// Opens the plug-in's screens on the display and gives them back.
#pragma once

#include "host/ScreenLibrary.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace host {

/// One screen from its creation to its destruction. Exactly one call of the matching destroy function, whichever
/// way the screen ends; never from inside a signal of the screen.
class OpenScreen : public QObject
{
    Q_OBJECT

public:
    /// Makes the screen as a child of `display` and shows it.
    OpenScreen(const ScreenEntry &entry, const ScreenLibrary::Functions &functions, QWidget *display,
               QObject *parent);
    ~OpenScreen() override;

    /// Null when the plug-in gave no screen, and after giveBack().
    QWidget *widget() const { return screen; }
    /// Calls the destroy function, once.
    void giveBack();

signals:
    /// The user has left the screen, whose own signal is over by now.
    void left();

private:
    ScreenLibrary::Destroy *destroy;
    QPointer<QWidget> screen;
};

/// At most one screen at a time.
class ScreenHost : public QObject
{
    Q_OBJECT

public:
    /// `library` and `display` outlive the host.
    ScreenHost(const ScreenLibrary &library, QWidget *display);
    ~ScreenHost() override;

    /// Opens row `index` of the screen table. False when a screen is open already, the index is none, or the
    /// plug-in gives no screen.
    bool open(int index);
    /// Gives the open screen back at once, if there is one. Not to be called from a signal of the screen.
    void close();
    /// The open screen or null.
    QWidget *screen() const;

signals:
    /// A screen has been given back.
    void closed();

private:
    const ScreenLibrary &library;
    QWidget *const display;
    OpenScreen *current = nullptr;
};

} // namespace host
