#include "host/tour/ScreenText.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZLabel.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZSoftKey.h"

#include <algorithm>

namespace host::tour {

namespace {

bool needsQuotes(const QString &cell)
{
    static constexpr QStringView special = u"|\"\\\n";
    const bool blankAtEnd = !cell.isEmpty() && (cell.front().isSpace() || cell.back().isSpace());
    return blankAtEnd || std::any_of(cell.begin(), cell.end(), [](QChar c) { return special.contains(c); });
}

QString written(QString cell)
{
    if (!needsQuotes(cell))
        return cell;
    cell.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return u'"' + cell.replace(u'\n', QStringLiteral("\\n")) + u'"';
}

QWidget *layerOf(QWidget *widget)
{
    while (widget && !qobject_cast<ZKbMainWidget *>(widget) && !qobject_cast<ZPopup *>(widget))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return widget;
}

// The widgets of one kind that belong to the layer itself, and not to a dialog or sub-screen inside it.
template <typename Widget>
QList<Widget *> ownWidgets(const QWidget *layer)
{
    QList<Widget *> own;
    const QList<Widget *> inside = layer->findChildren<Widget *>();
    for (Widget *widget : inside) {
        if (layerOf(widget) == layer && widget->isVisibleTo(layer))
            own << widget;
    }
    return own;
}

Fact rowFact(const ZListItem &item, int row)
{
    if (item.isSeparator())
        return {QStringLiteral("separator"), row, {item.title()}};
    QStringList cells{item.title()};
    if (!item.value().isNull())
        cells << item.value();
    return {QStringLiteral("row"), row, cells};
}

void readList(const ZListBox &list, QList<Fact> &facts)
{
    facts.append({QStringLiteral("rows"), -1, {QString::number(list.count())}});
    for (int row = 0; row < list.count(); ++row)
        facts.append(rowFact(*list.item(row), row));
    for (int row = 0; row < list.count(); ++row) {
        if (!list.item(row)->enabled())
            facts.append({QStringLiteral("disabled"), row, {}});
    }
    if (list.currentItem() >= 0)
        facts.append({QStringLiteral("focus"), -1, {QString::number(list.currentItem())}});
}

void readContent(const QWidget *layer, QList<Fact> &facts)
{
    int number = 0;
    for (const ZLabel *label : ownWidgets<ZLabel>(layer))
        facts.append({QStringLiteral("label"), number++, {label->text()}});
    for (const ZMultiLineEdit *field : ownWidgets<ZMultiLineEdit>(layer))
        facts.append({QStringLiteral("entry"), -1, {field->toPlainText()}});
    for (const ZListBox *list : ownWidgets<ZListBox>(layer))
        readList(*list, facts);
}

void readSoftkeys(const ZSoftKey *bar, QList<Fact> &facts)
{
    if (bar)
        facts.append(
            {QStringLiteral("softkeys"), -1, {bar->text(ZSoftKey::LeftKey), bar->text(ZSoftKey::RightKey)}});
}

void readScreenLayer(const ZKbMainWidget &screen, ScreenText &text)
{
    text.name = screen.mainWidgetTitle();
    text.facts.append({QStringLiteral("title"), -1, {screen.mainWidgetTitle()}});
    readContent(&screen, text.facts);
    readSoftkeys(qobject_cast<ZSoftKey *>(screen.cstWidget()), text.facts);
}

void readDialogLayer(const ZPopup &dialog, ScreenText &text)
{
    text.name = dialog.header().isEmpty() ? QStringLiteral("notice") : dialog.header();
    text.facts.append({QStringLiteral("header"), -1, {dialog.header()}});
    const QString message = dialog.accessibleDescription();
    if (!message.isEmpty() || qobject_cast<const ZMessageDlg *>(&dialog))
        text.facts.append({QStringLiteral("message"), -1, {message}});
    readContent(&dialog, text.facts);
    readSoftkeys(dialog.softKey(), text.facts);
}

bool sameFact(const ScreenText &one, const ScreenText &other, const QString &word)
{
    const Fact *first = one.find(word, -1);
    const Fact *second = other.find(word, -1);
    return first && second ? *first == *second : first == second;
}

} // namespace

QString Fact::line() const
{
    QString text = word;
    if (number >= 0)
        text += u' ' + QString::number(number);
    if (cells.isEmpty())
        return text;
    QStringList quoted;
    for (const QString &cell : cells)
        quoted << written(cell);
    const QString joined = quoted.join(QStringLiteral(" | ")).trimmed();
    return text + u' ' + (joined.isEmpty() ? QStringLiteral("\"\"") : joined);
}

const Fact *ScreenText::find(const QString &word, int number) const
{
    const auto matches = [&](const Fact &fact) { return fact.word == word && fact.number == number; };
    const auto found = std::find_if(facts.begin(), facts.end(), matches);
    return found == facts.end() ? nullptr : &*found;
}

bool ScreenText::isSameAs(const ScreenText &other) const
{
    // A new dialog may well lie where an old one lay in memory.
    return layer == other.layer && sameFact(*this, other, QStringLiteral("title")) &&
           sameFact(*this, other, QStringLiteral("header")) && sameFact(*this, other, QStringLiteral("message"));
}

ScreenText readScreen()
{
    ScreenText text;
    const QWidget *layer = layerOf(ZApplication::keyTarget());
    text.layer = layer;
    if (const auto *dialog = qobject_cast<const ZPopup *>(layer))
        readDialogLayer(*dialog, text);
    else if (const auto *screen = qobject_cast<const ZKbMainWidget *>(layer))
        readScreenLayer(*screen, text);
    return text;
}

} // namespace host::tour
