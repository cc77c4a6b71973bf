#include "host/PhoneWindow.h"

#include "host/AccessibleRole.h"
#include "host/MenuScreen.h"
#include "host/OpeningProgress.h"
#include "host/WaitNotice.h"
#include "host/panel/Panel.h"
#include "host/phone/CallNotice.h"
#include "host/phone/Display.h"
#include "host/phone/DisplayView.h"
#include "host/phone/Keypad.h"
#include "host/phone/KeysFrame.h"
#include "host/phone/PhoneBody.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKeys.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>

#include <utility>

namespace host {

namespace {

constexpr int deskMargin = 24;
constexpr int leastDeskMargin = 8; // above and below, on a low screen

// As large as it wants to be, or as its screen lets it: some of a low screen is for the window's title.
QSize sizeOnScreen(const QWidget &window)
{
    constexpr int titleHeight = 40;
    const QSize wanted = window.sizeHint();
    const QSize screen = window.screen()->availableSize();
    return wanted.height() <= screen.height() ? wanted.boundedTo(screen)
                                              : wanted.boundedTo(screen - QSize(0, titleHeight));
}
constexpr QSize sizeOfDisplayAlone(360, 640); // a small phone's window

} // namespace

PhoneWindow::PhoneWindow(const ScreenLibrary &library, OpenHandset open, Form form)
    : openHandset(std::move(open))
    , row(new QHBoxLayout)
    , body(new PhoneBody(this))
    , menu(new MenuScreen(body->display()))
    , screens(library, body->display())
{
    giveAccessibleRole<PhoneWindow, QAccessible::Window>();
    setWindowTitle(tr("Recent Calls"));
    if (form == Form::OnDesk)
        layOut();
    else
        layOutDisplayAlone();
    connect(menu, &MenuScreen::chosen, this, &PhoneWindow::openScreen);
    connect(menu, &MenuScreen::exitRequested, this, &PhoneWindow::close, Qt::QueuedConnection);
    connect(&screens, &ScreenHost::closed, menu, &MenuScreen::takeFocus);
    menu->show();
    menu->takeFocus();
    qApp->installEventFilter(this);
}

PhoneWindow::PhoneWindow(const ScreenLibrary &library, const OpenedHandset &handset, Form form)
    : PhoneWindow(
          library, [handset] { return handset; }, form)
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
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(deskMargin, leastDeskMargin, deskMargin, leastDeskMargin);
    column->setSpacing(0);
    const auto addDesk = [column] {
        column->addItem(
            new QSpacerItem(0, deskMargin - leastDeskMargin, QSizePolicy::Minimum, QSizePolicy::Maximum));
    };
    addDesk();
    column->addLayout(row, 1);
    addDesk();
    row->setSpacing(deskMargin);
    row->addWidget(body, 0, Qt::AlignTop);
    placeOfPanel = new QSpacerItem(deskMargin + Panel::usualWidth, 0, QSizePolicy::MinimumExpanding);
    row->addItem(placeOfPanel);
    resize(sizeOnScreen(*this));
}

void PhoneWindow::layOutDisplayAlone()
{
    body->hide();
    alone = new DisplayView(body->display(), this);
    setLayout(row);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->setDirection(QBoxLayout::TopToBottom);
    row->addWidget(alone, 1);
    setFocusProxy(alone);
    resize(sizeOfDisplayAlone);
}

// In the panel's place: as wide as a panel at the least, so that the window keeps its size.
void PhoneWindow::putBeside(QWidget *widget, Qt::Alignment alignment)
{
    if (placeOfPanel)
        row->removeItem(placeOfPanel);
    delete std::exchange(placeOfPanel, nullptr);
    row->addWidget(widget, alone ? 0 : 1, alignment);
    widget->show();
}

void PhoneWindow::listen(handset::Settings &settings)
{
    settings.progress = [this, other = std::move(settings.progress)](const QString &step, int percent) {
        if (other)
            other(step, percent);
        showProgress(step, percent);
    };
    // The handset may outlive the window.
    settings.tell = [shown = QPointer<PhoneWindow>(this),
                     other = std::move(settings.tell)](const QString &notice) {
        if (other)
            other(notice);
        if (shown && shown->line)
            shown->line->addNotice(notice);
    };
}

// The window system asks of an exposed or uncovered window to be painted, and of every window whether it still answers.
// What comes in finds no handset yet: complete() returns false. What the user does waits until there is one.
void PhoneWindow::showProgress(const QString &step, int percent)
{
    if (line)
        return;
    if (!opening) {
        opening = new OpeningProgress(this);
        opening->setMinimumWidth(alone ? 0 : Panel::usualWidth);
        putBeside(opening, Qt::AlignTop);
    }
    opening->showStep(step, percent);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint(); // an update that is only asked for may come late
}

void PhoneWindow::paintEvent(QPaintEvent *)
{
    if (openHandset)
        QTimer::singleShot(0, this, [this] { return isVisible() && complete(); });
}

bool PhoneWindow::complete()
{
    if (!openHandset)
        return calls != nullptr;
    const std::optional<OpenedHandset> handset = std::exchange(openHandset, nullptr)();
    if (!handset) {
        close();
        return false;
    }
    line = std::make_unique<Line>(handset->handset);
    panelSetup.stateDirectory = handset->stateDirectory;
    panelSetup.notice = handset->notice;
    panelSetup.faults = handset->faults;
    panelSetup.renew = handset->renew;
    connectHandset();
    if (alone)
        delete std::exchange(opening, nullptr);
    else
        makePanel();
    return true;
}

void PhoneWindow::connectHandset()
{
    if (!alone)
        new KeysFrame(body->display());
    const auto extent = alone ? CallNotice::Extent::WithKeysAndAllNotices : CallNotice::Extent::CallsOnly;
    calls = new CallNotice(*line, menu->getContentWidget(true), menu->rowsHeight(), extent);
    connect(calls, &CallNotice::keyClicked, body->keypad(), &Keypad::press);
    // Before the line is told: a call that one of these ends is news.
    connect(menu, &MenuScreen::clearKeyClicked, calls, &CallNotice::dismiss);
    connect(body->keypad(), &Keypad::hangUpPressed, calls, &CallNotice::dismiss);
    connect(menu, &MenuScreen::clearKeyClicked, line.get(), &Line::takeBackDigit);
    connect(body->keypad(), &Keypad::callPressed, line.get(), &Line::pressCallKey);
    connect(body->keypad(), &Keypad::hangUpPressed, line.get(), &Line::pressHangUpKey);
    connect(body->keypad(), &Keypad::numberTyped, line.get(), &Line::typeNumber);
    // The handset may outlive the window.
    line->handset().setWaitListener(
        [notice = QPointer<WaitNotice>(new WaitNotice(alone ? alone : body->display()))](bool waits) {
            if (notice)
                notice->setWaiting(waits);
        });
}

void PhoneWindow::makePanel()
{
    panel = new Panel(*line, panelSetup, this);
    delete std::exchange(opening, nullptr);
    putBeside(panel);
    // For texts that are longer than usual in their language.
    resize(size().expandedTo(sizeOnScreen(*this)));
}

bool PhoneWindow::openScreen(int index)
{
    if (!complete() || !screens.open(index))
        return false;
    calls->dismiss();
    return true;
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
    const bool fromPhone = isOnPhone(focusWidget());
    const bool isShortcut = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (fromPhone)
        QWidget::keyPressEvent(event);
    else if (ZKeys::phoneKey(event->key()) != ZKeys::PhoneKey::None)
        ZApplication::pressKey(event->key());
    else if (!isShortcut && Keypad::keyOf(event->key()) != 0)
        body->keypad()->press(event->key());
    else
        QWidget::keyPressEvent(event);
}

// A list takes digits to look for a row, and a dialog is a window of its own: the phone is told before either.
bool PhoneWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isTyped =
        event->type() == QEvent::KeyPress && event->spontaneous() && watched == QApplication::focusWidget();
    return isTyped && takeKeyboard(*static_cast<QKeyEvent *>(event));
}

bool PhoneWindow::isOnPhone(const QWidget *focus) const
{
    return alone || body->isAncestorOf(focus);
}

// Answers whether the key was one that no screen knows.
bool PhoneWindow::takeKeyboard(const QKeyEvent &event)
{
    const bool isShortcut = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const int key = Keypad::keyOf(event.key());
    if (!line || isShortcut || event.isAutoRepeat() || key == 0)
        return false;
    const bool isColoured = key == Qt::Key_Call || key == Qt::Key_Hangup;
    if (isColoured)
        body->keypad()->press(key);
    else if (isOnPhone(QApplication::focusWidget()))
        body->keypad()->tellTyped(key);
    return isColoured;
}

} // namespace host
