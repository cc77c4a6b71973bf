#include "host/ScreenHost.h"

namespace host {

OpenScreen::OpenScreen(const ScreenEntry &entry, const ScreenLibrary::Functions &functions, QWidget *display,
                       QObject *parent)
    : QObject(parent)
    , destroy(functions.destroy)
    , screen(functions.create(display, entry.name))
{
    if (!screen)
        return;
    // Queued, so that the emission is over when the screen is deleted; to this object and not to the host, so that
    // a second emission that is still under way cannot reach the next screen.
    connect(screen, SIGNAL(closeWidget()), this, SIGNAL(left()), Qt::QueuedConnection);
    screen->show();
}

OpenScreen::~OpenScreen()
{
    giveBack();
}

void OpenScreen::giveBack()
{
    if (!screen)
        return;
    QWidget *leaving = screen;
    screen.clear();
    destroy(leaving);
}

ScreenHost::ScreenHost(const ScreenLibrary &pluginLibrary, QWidget *phoneDisplay)
    : library(pluginLibrary)
    , display(phoneDisplay)
{}

ScreenHost::~ScreenHost()
{
    close();
}

bool ScreenHost::open(int index)
{
    if (current || index < 0 || index >= static_cast<int>(screenTable.size()))
        return false;
    const ScreenEntry &entry = screenTable[static_cast<std::size_t>(index)];
    auto *opening = new OpenScreen(entry, library.functions(index), display, this);
    if (!opening->widget()) {
        qWarning("The plug-in gives no screen \"%s\".", entry.name);
        delete opening;
        return false;
    }
    connect(opening, &OpenScreen::left, this, &ScreenHost::close);
    current = opening;
    return true;
}

void ScreenHost::close()
{
    if (!current)
        return;
    OpenScreen *leaving = current;
    current = nullptr;
    leaving->disconnect(this);
    leaving->giveBack();
    leaving->deleteLater(); // it may be emitting left() just now
    emit closed();
}

QWidget *ScreenHost::screen() const
{
    return current ? current->widget() : nullptr;
}

} // namespace host
