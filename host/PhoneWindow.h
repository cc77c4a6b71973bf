// The application's window: the phone, and the panel beside it.
#pragma once

#include "handset/Handset.h"
#include "host/Line.h"
#include "host/ScreenHost.h"
#include "host/panel/Panel.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;
class QSpacerItem;

namespace host {

class CallNotice;
class Faults;
class MenuScreen;
class OpeningProgress;
class PhoneBody;

class PhoneWindow : public QWidget
{
    Q_OBJECT

public:
    struct OpenedHandset {
        std::shared_ptr<handset::Handset> handset; ///< what the panel drives
        QString stateDirectory;                    ///< empty in memory
        QString notice;                            ///< of its opening
        Faults *faults = nullptr;                  ///< of what is installed in front of it, as in Panel::Setup
        std::function<void()> renew = {};          ///< as in Panel::Setup
    };
    /// Opens the handset and installs it; nothing where that failed.
    using OpenHandset = std::function<std::optional<OpenedHandset>()>;

    /// What of the phone is shown: it lies on a desk, with the panel beside it; or its display fills the window, for a
    /// window that is a phone's.
    enum class Form { OnDesk, DisplayAlone };

    /// `library` outlives the window. `open` is called once, by complete(); the library is loaded after it.
    PhoneWindow(const ScreenLibrary &library, OpenHandset open, Form form = Form::OnDesk);
    /// With a handset that is open already.
    PhoneWindow(const ScreenLibrary &library, const OpenedHandset &handset, Form form = Form::OnDesk);
    /// Gives back an open screen. Not before: a closed window's screen may still wait for a dialog that blocks it,
    /// and is destroyed once the event loop has ended.
    ~PhoneWindow() override;

    /// Has the window show what a handset that is opened with `settings` tells, beside whoever listens already: how far
    /// its opening is, in the panel's place, and then its notices, in the panel. `settings.progress` is for what the
    /// window opens; each call paints, and handles what is to be handled except what the user does.
    void listen(handset::Settings &settings);

    /// Opens the handset and makes the panel now, which otherwise follows the window's first paint: the phone is
    /// seen that much sooner. False when the handset cannot be opened, and the window is closed then; and while it is
    /// being opened. A display that is alone has no panel.
    bool complete();

    /// Opens row `index` of the screen table, on a complete window; false as in ScreenHost::open().
    bool openScreen(int index);
    /// As Panel::choosePage().
    void choosePage(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    /// Keys that nothing in the panel takes go to the phone.
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool takeKeyboard(const QKeyEvent &event);
    bool isOnPhone(const QWidget *focus) const;
    void layOut();
    void layOutDisplayAlone();
    void showProgress(const QString &step, int percent);
    void connectHandset();
    void makePanel();
    void putBeside(QWidget *widget, Qt::Alignment alignment = {});

    OpenHandset openHandset;    ///< until it is called
    std::unique_ptr<Line> line; ///< until complete() null, as the panel
    QHBoxLayout *row;
    Panel::Setup panelSetup;
    PhoneBody *body;                     ///< of a display that is alone only the keypad, which nobody sees
    QWidget *alone = nullptr;            ///< what shows the display where that is alone
    QSpacerItem *placeOfPanel = nullptr; ///< until something is there
    OpeningProgress *opening = nullptr;  ///< until the panel is there; made when there is something to show
    Panel *panel = nullptr;
    MenuScreen *menu;
    CallNotice *calls = nullptr; ///< until complete()
    ScreenHost screens;
};

} // namespace host
