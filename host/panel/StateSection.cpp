#include "host/panel/StateSection.h"

#include "host/panel/Controls.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace host {

namespace {

// A path has no blanks to break at; an invisible one behind each slash lets it wrap there, and others within a long name.
QString breakable(const QString &path)
{
    QStringList names = path.split(QLatin1Char('/'));
    for (QString &name : names)
        name = breakableWords(name);
    return names.join(QStringLiteral("/\u200b"));
}

} // namespace

StateSection::StateSection(const QString &stateDirectory, const QString &notice,
                           const std::function<void()> &begin)
    : PanelSection(tr("State"))
    , isKept(!stateDirectory.isEmpty())
    , renew(begin)
{
    auto *column = new QVBoxLayout(this);
    const QString directory = stateDirectory.isEmpty() ? QString() : QFileInfo(stateDirectory).absoluteFilePath();
    const QString place = directory.isEmpty() ? tr("In memory; gone when the window closes.")
                                              : tr("Kept in %1").arg(breakable(directory));
    QLabel *placeLabel = makeValue("state directory", tr("Where the state is kept"));
    placeLabel->setText(place);
    placeLabel->setToolTip(directory);
    column->addWidget(placeLabel);
    if (!notice.isEmpty()) {
        QLabel *noticeLabel = makeValue("notice", {});
        noticeLabel->setText(breakableWords(notice));
        column->addWidget(noticeLabel);
    }
    if (!renew)
        return;
    QPushButton *button = makeButton(tr("New telephone ..."), tr("Begins with a new telephone, after a question"));
    button->setObjectName(QStringLiteral("new telephone"));
    connect(button, &QPushButton::clicked, this, &StateSection::askToRenew);
    column->addWidget(button);
}

void StateSection::askToRenew()
{
    const QString fate =
        isKept ? tr("What there is now is kept in a file beside it.") : tr("What there is now is lost.");
    const QString question =
        tr("Begin with a new telephone? Calls, figures, settings and the simulated SIM card begin anew; a call "
           "that is on ends.");
    auto *box = new QMessageBox(QMessageBox::Question, tr("New telephone"), question + u' ' + fate,
                                QMessageBox::Cancel, window());
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton *yes = box->addButton(tr("Begin anew"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    connect(yes, &QPushButton::clicked, this, [this] { renew(); });
    box->open();
}

} // namespace host
