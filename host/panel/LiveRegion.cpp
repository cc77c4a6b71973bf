#include "host/panel/LiveRegion.h"

#include "host/AccessibleRole.h"

#include <QtCore/QTimer>

namespace host {

LiveRegion::LiveRegion(QWidget *window)
    : QWidget(window)
{
    giveAccessibleRole<LiveRegion, QAccessible::Notification>();
    setObjectName(QStringLiteral("live region"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1); // in the margin: what has no place is not on show
}

void LiveRegion::tell(QWidget *window, const QString &text)
{
    if (!QAccessible::isActive())
        return;
    auto *region = window->findChild<LiveRegion *>(QString(), Qt::FindDirectChildrenOnly);
    if (!region)
        region = new LiveRegion(window);
    region->due << text;
    if (region->due.size() == 1)
        QTimer::singleShot(0, region, &LiveRegion::speak);
}

// Some screen readers speak what is alarming, others what appears.
void LiveRegion::speak()
{
    hide(); // to appear anew
    setAccessibleName(due.join(QLatin1Char('\n')));
    due.clear();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace host
