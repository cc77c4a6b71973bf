#include "PhoneWindow.h"

#include "MenuScreen.h"
#include "ZApplication.h"
#include "ZKeys.h"
#include "panel/Panel.h"
#include "phone/Display.h"
#include "phone/Keypad.h"
#include "phone/PhoneBody.h"

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>

#include <utility>

namespace host {

namespace {

constexpr int deskMargin = 24;

} // namespace

PhoneWindow::PhoneWindow(const ScreenLibrary &library, OpenTelephone open)
    : openTelephone(std::move(open))
    , row(new QHBoxLayout(this))
    , body(new PhoneBody(this))
    , menu(new MenuScreen(body->display()))
    , screens(library, body->display())
{
    setWindowTitle(tr("Recent Calls"));
    layOut();
    connect(menu, &MenuScreen::chosen, this, &PhoneWindow::openScreen);
    connect(menu, &MenuScreen::exitRequested, this, &PhoneWindow::close, Qt::QueuedConnection);
    connect(&screens, &ScreenHost::closed, menu, &MenuScreen::takeFocus);
    menu->show();
    menu->takeFocus();
}

PhoneWindow::PhoneWindow(const ScreenLibrary &library, const Telephone &telephone)
    : PhoneWindow(library, [telephone] { return telephone; })
{}

PhoneWindow::~PhoneWindow()
{
    screens.close();
    // A number that is being typed in the panel is taken when it loses the focus, which must not be after the line.
    if (QWidget *typedInto = focusWidget())
        typedInto->clearFocus();
    delete panel;
}

void PhoneWindow::layOut()
{
    row->setContentsMargins(deskMargin, deskMargin, deskMargin, deskMargin);
    row->setSpacing(deskMargin);
    row->addWidget(body, 0, Qt::AlignTop);
    placeOfPanel = new QSpacerItem(deskMargin + Panel::usualWidth, 0, QSizePolicy::MinimumExpanding);
    row->addItem(placeOfPanel);
}

void PhoneWindow::paintEvent(QPaintEvent *)
{
    if (openTelephone)
        QTimer::singleShot(0, this, [this] { return isVisible() && complete(); });
}

bool PhoneWindow::complete()
{
    if (!openTelephone)
        return panel != nullptr;
    const std::optional<Telephone> telephone = std::exchange(openTelephone, nullptr)();
    if (!telephone) {
        close();
        return false;
    }
    line = std::make_unique<Line>(telephone->handset);
    panelSetup.stateDirectory = telephone->stateDirectory;
    panelSetup.notice = telephone->notice;
    panelSetup.faults = telephone->faults;
    connectTelephone();
    makePanel();
    return true;
}

void PhoneWindow::connectTelephone()
{
    connect(menu, &MenuScreen::clearKeyClicked, line.get(), &Line::takeBackDigit);
    connect(body->keypad(), &Keypad::callPressed, line.get(), &Line::pressCallKey);
    connect(body->keypad(), &Keypad::hangUpPressed, line.get(), &Line::pressHangUpKey);
    connect(body->keypad(), &Keypad::numberTyped, line.get(), &Line::typeNumber);
}

void PhoneWindow::makePanel()
{
    panel = new Panel(*line, panelSetup, this);
    row->removeItem(placeOfPanel);
    delete placeOfPanel;
    row->addWidget(panel, 1);
    panel->show();
    // For texts that are longer than usual in their language.
    resize(size().expandedTo(sizeHint()));
}

bool PhoneWindow::openScreen(int index)
{
    return complete() && screens.open(index);
}

void PhoneWindow::choosePage(int index)
{
    if (panel)
        panel->choosePage(index);
    else
        panelSetup.page = index;
}

void PhoneWindow::keyPressEvent(QKeyEvent *event)
{
    const bool fromPhone = body->isAncestorOf(focusWidget());
    if (fromPhone || ZKeys::phoneKey(event->key()) == ZKeys::PhoneKey::None)
        QWidget::keyPressEvent(event);
    else
        ZApplication::pressKey(event->key());
}

} // namespace host
