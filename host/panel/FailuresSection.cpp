#include "host/panel/FailuresSection.h"

#include "handset/Status.h"
#include "host/StatusText.h"
#include "host/panel/Controls.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <algorithm>
#include <limits>

namespace host {

namespace {

constexpr int usualCode = handset::StorageFailed;
constexpr int operationRole = Qt::UserRole;

QString nameOf(std::size_t index)
{
    return QString::fromLatin1(handset::operationNames[index]);
}

QString breakableAtColons(QString name)
{
    return name.replace(QStringLiteral("::"), QStringLiteral("::\u200b"));
}

// A status by its name, or any other number that a handset may answer.
class StatusBox : public QSpinBox
{
protected:
    QString textFromValue(int value) const override { return statusName(value); }
    int valueFromText(const QString &text) const override { return statusNamed(text).value_or(value()); }
    QValidator::State validate(QString &text, int &) const override
    {
        return statusNamed(text) ? QValidator::Acceptable : QValidator::Intermediate;
    }
};

} // namespace

FailuresSection::FailuresSection(Faults &handsetFaults)
    : PanelSection(tr("Failures"))
    , faults(handsetFaults)
    , operation(makeChoice("operation", tr("Operation"), {}))
    , code(new StatusBox)
    , addButton(makeButton(tr("Let it &fail"), tr("From now on the operation only answers the code")))
    , failing(new QListWidget)
    , removeButton(makeButton(tr("&Remove"), tr("The chosen operation works again")))
    , removeAllButton(makeButton(tr("Remove a&ll"), tr("Every operation works again")))
{
    prepareControls();
    layOut();
    connect(addButton, &QPushButton::clicked, this, &FailuresSection::add);
    connect(code, &QSpinBox::valueChanged, this, &FailuresSection::refresh);
    connect(failing, &QListWidget::currentRowChanged, this, &FailuresSection::refresh);
    connect(removeButton, &QPushButton::clicked, this, &FailuresSection::remove);
    connect(removeAllButton, &QPushButton::clicked, this, &FailuresSection::removeAll);
}

void FailuresSection::prepareControls()
{
    for (std::size_t index = 0; index < handset::operationNames.size(); ++index) {
        operation->addItem(nameOf(index));
        operation->setItemData(static_cast<int>(index), nameOf(index), Qt::ToolTipRole);
    }
    operation->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    operation->setToolTip(tr("What the phone's libraries ask of the telephone"));
    code->setObjectName(QStringLiteral("failure code"));
    code->setAccessibleName(tr("Code"));
    code->setToolTip(tr("What the operation answers: a name, or a number; not Success"));
    code->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    code->setValue(usualCode);
    code->setFocusPolicy(Qt::StrongFocus);
    leaveWheelToPanel(code);
    failing->setObjectName(QStringLiteral("failing"));
    failing->setAccessibleName(tr("Operations that fail"));
    failing->setWordWrap(true);
    failing->setFocusPolicy(Qt::TabFocus);
    failing->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void FailuresSection::layOut()
{
    auto *grid = new QGridLayout(this);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->addWidget(operation, 0, 0, 1, 2);
    grid->addWidget(code, 1, 0);
    grid->addWidget(addButton, 1, 1);
    grid->addWidget(new QLabel(tr("Failing now")), 2, 0, 1, 2);
    grid->addWidget(failing, 3, 0, 1, 2);
    grid->addWidget(removeButton, 4, 0);
    grid->addWidget(removeAllButton, 4, 1);
}

void FailuresSection::add()
{
    faults.set(operation->currentIndex(), code->value());
    refresh();
}

void FailuresSection::remove()
{
    if (const QListWidgetItem *chosen = failing->currentItem())
        faults.set(chosen->data(operationRole).toInt(), 0);
    refresh();
}

void FailuresSection::removeAll()
{
    faults.clear();
    refresh();
}

void FailuresSection::refresh()
{
    if (!(shown == faults))
        fillList();
    addButton->setEnabled(code->value() != 0);
    removeButton->setEnabled(failing->currentItem() != nullptr);
    removeAllButton->setEnabled(failing->count() > 0);
}

void FailuresSection::fillList()
{
    const int before = failing->currentRow();
    const Quietly list(failing);
    list->clear();
    for (int index = 0; index < static_cast<int>(handset::operationNames.size()); ++index) {
        if (faults.code(index) == 0)
            continue;
        const QString name = nameOf(static_cast<std::size_t>(index));
        auto *item = new QListWidgetItem(
            QStringLiteral("%1: %2").arg(breakableAtColons(name), statusName(faults.code(index))), failing);
        item->setToolTip(name);
        item->setData(Qt::AccessibleTextRole, QStringLiteral("%1: %2").arg(name, statusName(faults.code(index))));
        item->setData(operationRole, index);
    }
    list->setCurrentRow(std::min(std::max(before, 0), failing->count() - 1));
    shown = faults;
}

} // namespace host
