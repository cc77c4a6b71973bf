// Ends the program that it is loaded into when the first window has been painted. Qt loads it by the environment, so
// that the program that is measured is the one that users have.
//
// With a name in KAVBENCH_PICTURE it photographs the window first, to NAME-first.png, and once more when nothing is left
// to do, to NAME-last.png.
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QGenericPlugin>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <unistd.h>

namespace {

constexpr int idleRounds = 50; // of the event loop, in which nothing may be painted any more

class FirstPaint final : public QObject
{
public:
    FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        auto *widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(receiver) : nullptr;
        if (!widget || !widget->isWindow())
            return false;
        // The widgets in the window are painted by now when this comes back to the event loop.
        QCoreApplication::instance()->removeEventFilter(this);
        QMetaObject::invokeMethod(
            widget, [this, widget] { painted(widget); }, Qt::QueuedConnection);
        return false;
    }

private:
    void painted(QWidget *window)
    {
        const QString name = qEnvironmentVariable("KAVBENCH_PICTURE");
        if (name.isEmpty())
            ::_exit(EXIT_SUCCESS);
        bool isKept = photograph(window, name + QStringLiteral("-first.png"));
        for (int round = 0; round < idleRounds; ++round)
            QCoreApplication::processEvents();
        window->repaint();
        isKept = photograph(window, name + QStringLiteral("-last.png")) && isKept;
        ::_exit(isKept ? EXIT_SUCCESS : EXIT_FAILURE);
    }

    static bool photograph(QWidget *window, const QString &file)
    {
        return window->screen()->grabWindow(window->winId()).save(file);
    }
};

} // namespace

class FirstPaintPlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &, const QString &) override { return new FirstPaint; }
};

#include "firstpaint.moc"
