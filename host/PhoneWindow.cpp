#include "PhoneWindow.h"

#include "MenuScreen.h"
#include "ZApplication.h"
#include "ZKeys.h"
#include "panel/Panel.h"
#include "phone/Display.h"
#include "phone/Keypad.h"
#include "phone/PhoneBody.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHBoxLayout>

namespace host {

namespace {

constexpr int deskMargin = 24;

} // namespace

PhoneWindow::PhoneWindow(const ScreenLibrary &library, const Telephone &telephone)
    : line(telephone.handset)
    , row(new QHBoxLayout(this))
    , panelSetup{telephone.stateDirectory, telephone.notice, telephone.faults}
    , body(new PhoneBody(this))
    , menu(new MenuScreen(body->display()))
    , screens(library, body->display())
{
    setWindowTitle(tr("Recent Calls"));
    layOut();
    connect(menu, &MenuScreen::chosen, &screens, &ScreenHost::open);
    connect(menu, &MenuScreen::exitRequested, this, &PhoneWindow::close, Qt::QueuedConnection);
    connect(menu, &MenuScreen::clearKeyClicked, &line, &Line::takeBackDigit);
    connect(&screens, &ScreenHost::closed, menu, &MenuScreen::takeFocus);
    connect(body->keypad(), &Keypad::callPressed, &line, &Line::pressCallKey);
    connect(body->keypad(), &Keypad::hangUpPressed, &line, &Line::pressHangUpKey);
    connect(body->keypad(), &Keypad::numberTyped, &line, &Line::typeNumber);
    menu->show();
    menu->takeFocus();
}

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
    if (!panel)
        QMetaObject::invokeMethod(this, &PhoneWindow::complete, Qt::QueuedConnection);
}

void PhoneWindow::complete()
{
    if (panel)
        return;
    panel = new Panel(line, panelSetup, this);
    row->removeItem(placeOfPanel);
    delete placeOfPanel;
    row->addWidget(panel, 1);
    panel->show();
    // For texts that are longer than usual in their language.
    resize(size().expandedTo(sizeHint()));
}

bool PhoneWindow::openScreen(int index)
{
    return screens.open(index);
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
