#include "host/panel/StateSection.h"

#include "host/panel/Controls.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>
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

StateSection::StateSection(const QString &stateDirectory, const QString &notice)
    : PanelSection(tr("State"))
{
    auto *column = new QVBoxLayout(this);
    const QString directory = stateDirectory.isEmpty() ? QString() : QFileInfo(stateDirectory).absoluteFilePath();
    const QString place = directory.isEmpty() ? tr("In memory; gone when the window closes.")
                                              : tr("Kept in %1").arg(breakable(directory));
    QLabel *placeLabel = makeValue("state directory", tr("Where the state is kept"));
    placeLabel->setText(place);
    placeLabel->setToolTip(directory);
    column->addWidget(placeLabel);
    if (notice.isEmpty())
        return;
    QLabel *noticeLabel = makeValue("notice", {});
    noticeLabel->setText(notice);
    column->addWidget(noticeLabel);
}

} // namespace host
