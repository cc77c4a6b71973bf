// A second host: a window with a button for each screen of the plug-in, and the screen that was chosen.
//     secondhost               the window
//     secondhost --print NAME  prints the screen NAME as text and leaves it by its right softkey
#include "callmeter/callmeter.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"

#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <array>

namespace {

// The screens' classes are the plug-in's own. Their first base is QWidget, so that a pointer to one is a pointer to both.
struct Entry {
    const char *name;
    callmeter::CreateScreen *create;
    callmeter::DestroyScreen *destroy;
};

template <typename Screen>
Entry entry(const char *name, Screen *(*create)(QWidget *, const char *), void (*destroy)(Screen *))
{
    return {name, reinterpret_cast<callmeter::CreateScreen *>(create),
            reinterpret_cast<callmeter::DestroyScreen *>(destroy)};
}

const std::array screens{
    entry("callTime", &create_callTime, &destroy_callTime),
    entry("callCost", &create_callCost, &destroy_callCost),
    entry("dataTime", &create_dataTime, &destroy_dataTime),
    entry("dataVolume", &create_dataVolume, &destroy_dataVolume),
};

class Window : public QWidget
{
    Q_OBJECT

public:
    Window()
    {
        auto *const columns = new QHBoxLayout(this);
        auto *const buttons = new QVBoxLayout;
        columns->addLayout(buttons);
        for (const Entry &shown : screens) {
            auto *const button = new QPushButton(QLatin1String(shown.name));
            button->setFocusPolicy(Qt::NoFocus); // the keyboard stays with the screen
            connect(button, &QPushButton::clicked, this, [this, &shown] { open(shown); });
            buttons->addWidget(button);
        }
        buttons->addStretch();
        display = new QWidget;
        display->setFixedSize(240, 320);
        columns->addWidget(display);
        ZApplication::setDisplay(display); // where dialogs lie
    }
    ~Window() override { leave(); }

    bool open(const Entry &wanted)
    {
        leave();
        screen = wanted.create(display, wanted.name);
        if (!screen)
            return false;
        current = &wanted;
        // By name, as the class is not known here; queued, so that the emission is over when the screen goes.
        connect(screen, SIGNAL(closeWidget()), this, SLOT(leave()), Qt::QueuedConnection);
        screen->show();
        return true;
    }

    QString text() const
    {
        QString lines = qobject_cast<ZKbMainWidget *>(screen)->mainWidgetTitle();
        for (const ZListBox *const list : screen->findChildren<ZListBox *>()) {
            for (int row = 0; row < list->count(); ++row) {
                const QModelIndex index = list->model()->index(row, 0);
                lines += QStringLiteral("\n%1 | %2")
                             .arg(index.data().toString(), index.data(ZListBox::ValueRole).toString());
            }
        }
        return lines;
    }

public slots:
    void leave()
    {
        if (!screen)
            return;
        current->destroy(std::exchange(screen, nullptr));
        emit left();
    }

signals:
    void left();

private:
    QWidget *display = nullptr;
    QWidget *screen = nullptr;
    const Entry *current = nullptr;
};

int printScreen(Window &window, const QString &name)
{
    for (const Entry &wanted : screens) {
        if (name != QLatin1String(wanted.name) || !window.open(wanted))
            continue;
        QTextStream(stdout) << window.text() << Qt::endl;
        QObject::connect(&window, &Window::left, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        ZApplication::pressKey(Qt::Key_F2);
        return QApplication::exec();
    }
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Window window;
    window.show();
    return arguments.value(1) == QLatin1String("--print") ? printScreen(window, arguments.value(2))
                                                          : QApplication::exec();
}

#include "main.moc"
