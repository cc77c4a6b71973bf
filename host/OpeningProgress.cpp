#include "host/OpeningProgress.h"

#include "host/panel/Controls.h"

#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

namespace host {

OpeningProgress::OpeningProgress(QWidget *parent)
    : QGroupBox(tr("Opening the telephone"), parent)
    , text(makeAnnouncement("opening step", tr("What is being done")))
    , bar(new QProgressBar)
{
    bar->setAccessibleName(tr("How far it is"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(bar);
}

void OpeningProgress::showStep(const QString &step, int percent)
{
    text->say(step);
    bar->setValue(percent);
}

} // namespace host
