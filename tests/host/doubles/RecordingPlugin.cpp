#include "RecordingPlugin.h"

#include "ZKbMainWidget.h"
#include "ZListBox.h"
#include "ZSettingItem.h"
#include "ZSoftKey.h"

#include <QtCore/QFile>
#include <QtGui/QShowEvent>

namespace {

QStringList calls;

// For a test that runs the host as a process of its own.
void record(const QString &call)
{
    calls << call;
    QFile file(qEnvironmentVariable("KAV_RECORD"));
    if (!file.fileName().isEmpty() && file.open(QIODevice::Append))
        file.write(call.toUtf8() + '\n');
}

class RecordingScreen : public ZKbMainWidget
{
    Q_OBJECT

public:
    RecordingScreen(QWidget *parent, const char *name)
        : ZKbMainWidget(parent, name, 0)
        , list(new ZListBox(QStringLiteral("%M"), getContentWidget(true), 0, ZSkinService::SettingListClass))
    {
        setMainWidgetTitle(QStringLiteral("Recording"));
        auto *bar = new ZSoftKey(QStringLiteral("CST_2A"), this, nullptr);
        bar->setText(ZSoftKey::RightKey, QStringLiteral("Back"), ZSoftKey::DefaultTextPriority);
        bar->setClickedSlot(ZSoftKey::RightKey, this, SLOT(leave()));
        setCSTWidget(bar);
        connect(this, &ZKbMainWidget::clearKeyClicked, this, &RecordingScreen::leaveTwice);
    }
    ~RecordingScreen() override
    {
        record(emitting ? QStringLiteral("deleted while emitting") : QStringLiteral("deleted"));
    }

    Q_DISABLE_COPY_MOVE(RecordingScreen)

public slots:
    void leave()
    {
        record(QStringLiteral("emit"));
        emitting = true;
        emit closeWidget();
        emitting = false;
        record(QStringLiteral("emitted"));
    }
    void leaveTwice()
    {
        leave();
        leave();
    }

signals:
    void closeWidget();

protected:
    void showEvent(QShowEvent *event) override
    {
        record(QStringLiteral("show"));
        ZKbMainWidget::showEvent(event);
    }

private:
    ZListBox *list;
    bool emitting = false;
};

QWidget *create(QWidget *parent, const char *name)
{
    record(
        QStringLiteral("create %1 %2").arg(QLatin1StringView(name), parent ? "in a parent" : "without a parent"));
    return new RecordingScreen(parent, name);
}

void destroy(QWidget *screen)
{
    record(QStringLiteral("destroy %1").arg(screen->objectName()));
    delete screen;
}

} // namespace

#define KAV_DOUBLE(NAME)                                                                                          \
    extern "C" Q_DECL_EXPORT QWidget *create_##NAME(QWidget *parent, const char *name)                            \
    {                                                                                                             \
        return create(parent, name);                                                                              \
    }                                                                                                             \
    extern "C" Q_DECL_EXPORT void destroy_##NAME(QWidget *screen)                                                 \
    {                                                                                                             \
        destroy(screen);                                                                                          \
    }

KAV_DOUBLE(callTime)
KAV_DOUBLE(callCost)
KAV_DOUBLE(dataTime)
KAV_DOUBLE(dataVolume)

extern "C" Q_DECL_EXPORT QStringList &recordedCalls()
{
    return calls;
}

#include "RecordingPlugin.moc"
