#include "host/panel/StateSection.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace host {

namespace {

QLabel *makeLabel(const QString &text, const char *name)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

// A path has no blanks to break at; an invisible one behind each slash lets it wrap there.
QString breakable(QString path)
{
    return path.replace(QLatin1Char('/'), QStringLiteral("/\u200b"));
}

} // namespace

StateSection::StateSection(const QString &stateDirectory, const QString &notice)
    : PanelSection(tr("State"))
{
    auto *column = new QVBoxLayout(this);
    const QString directory = stateDirectory.isEmpty() ? QString() : QFileInfo(stateDirectory).absoluteFilePath();
    const QString place = directory.isEmpty() ? tr("In memory; gone when the window closes.")
                                              : tr("Kept in %1").arg(breakable(directory));
    QLabel *placeLabel = makeLabel(place, "state directory");
    placeLabel->setToolTip(directory);
    placeLabel->setAccessibleName(tr("Where the state is kept"));
    column->addWidget(placeLabel);
    if (!notice.isEmpty())
        column->addWidget(makeLabel(notice, "notice"));
}

} // namespace host
