#include "host/doubles/RecordingPlugin.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSoftKey.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QPointer>
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
        list->setGeometry(getContentWidget(true)->rect());
        auto *row = new ZSettingItem(list, QString());
        row->appendSubItem(0, QStringLiteral("Ask"), false, ZSettingItem::TitleRegion);
        list->insertItem(row, -1, true);
        connect(list, &ZListBox::selected, this, &RecordingScreen::ask);
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

    // A question that blocks the screen until it is answered or out of sight.
    void ask()
    {
        record(QStringLiteral("ask"));
        const QPointer<RecordingScreen> self(this);
        QString answer = QStringLiteral("given up");
        auto *question = new ZMessageDlg(QStringLiteral("Question"), QStringLiteral("Really?"),
                                         ZMessageDlg::QuestionDlg, 0, this, nullptr, true, 0);
        connect(question, &ZPopup::leftSoftkeyClicked, this, [&answer] { answer = QStringLiteral("yes"); });
        connect(question, &ZPopup::rightSoftkeyClicked, this, [&answer] { answer = QStringLiteral("no"); });
        question->installEventFilter(this);
        question->show();
        asking.exec();
        record(self ? answer : QStringLiteral("deleted while asking"));
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            asking.quit();
        return ZKbMainWidget::eventFilter(watched, event);
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
    QEventLoop asking;
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

extern "C" Q_DECL_EXPORT QStringList *recordedCalls()
{
    return &calls;
}

#include "RecordingPlugin.moc"
