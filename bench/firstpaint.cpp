// Ends the program that it is loaded into when the first window has been painted. Qt loads it by the environment, so
// that the program that is measured is the one that users have.
//
// KAVBENCH_UNTIL=idle ends it when nothing is left to do after that. With a name in KAVBENCH_PICTURE it photographs the
// window at the first paint, to NAME-first.png, and when nothing is left to do, to NAME-last.png; KAVBENCH_PART is the
// class of the widget that the photographs show, instead of all of the window.
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
        if (!name.isEmpty() && !photograph(window, name + QStringLiteral("-first.png")))
            ::_exit(EXIT_FAILURE);
        if (name.isEmpty() && qEnvironmentVariable("KAVBENCH_UNTIL") != QLatin1StringView("idle"))
            ::_exit(EXIT_SUCCESS);
        waitAndEnd(window, idleRounds);
    }

    void waitAndEnd(QWidget *window, int rounds)
    {
        if (rounds > 0) {
            QTimer::singleShot(0, this, [this, window, rounds] { waitAndEnd(window, rounds - 1); });
            return;
        }
        const QString name = qEnvironmentVariable("KAVBENCH_PICTURE");
        if (!name.isEmpty())
            window->repaint();
        const bool isKept = name.isEmpty() || photograph(window, name + QStringLiteral("-last.png"));
        ::_exit(isKept ? EXIT_SUCCESS : EXIT_FAILURE);
    }

    static bool photograph(QWidget *window, const QString &file)
    {
        const QRect part = partOf(window);
        return window->screen()
            ->grabWindow(window->winId(), part.x(), part.y(), part.width(), part.height())
            .save(file);
    }

    static QRect partOf(const QWidget *window)
    {
        const QByteArray name = qgetenv("KAVBENCH_PART");
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (widget->inherits(name.constData()))
                return {widget->mapTo(window, QPoint()), widget->size()};
        }
        return name.isEmpty() ? window->rect() : QRect();
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
