#include "toolkit/ZMultiLineEdit.h"

#include "toolkit/ZKeys.h"
#include "toolkit/ZScrollBar.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QMimeData>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostLines = 4; // before the field scrolls
constexpr int margin = 4;    // around the text, device-independent pixels
constexpr int cursorPixels = 2;

bool isBreak(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// Breaks at the end are what copying a line brings along; those in between part words.
QString asOneParagraph(QString text)
{
    while (!text.isEmpty() && isBreak(text.back()))
        text.chop(1);
    std::replace_if(text.begin(), text.end(), isBreak, QChar(QLatin1Char(' ')));
    return text;
}

} // namespace

struct ZMultiLineEdit::Private {
    int maxLength = -1;
    // Of the last change.
    int position = 0;
    int added = 0;
};

ZMultiLineEdit::ZMultiLineEdit(QWidget *parent, const char *name)
    : QPlainTextEdit(parent)
    , d(std::make_unique<Private>())
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setFont(ZSkinService::font(ZSkinService::RowFont));
    setPalette(ZSkinService::palette());
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new ZScrollBar(this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::NoContextMenu);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setCursorWidth(cursorPixels);
    document()->setDocumentMargin(0); // which would scroll away with the text
    setViewportMargins(margin, margin, margin, margin);
    connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        d->position = position;
        d->added = added;
    });
    connect(this, &QPlainTextEdit::textChanged, this, &ZMultiLineEdit::cutToLength);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &ZMultiLineEdit::linesChanged);
}

ZMultiLineEdit::~ZMultiLineEdit() = default;

void ZMultiLineEdit::setMaxLength(int length)
{
    d->maxLength = length;
    d->added = 0;
    cutToLength();
}

int ZMultiLineEdit::maxLength() const
{
    return d->maxLength;
}

// Of what the field shows: the document's height is in lines.
int ZMultiLineEdit::shownLines() const
{
    return std::clamp(static_cast<int>(document()->size().height()), 1, mostLines);
}

QSize ZMultiLineEdit::sizeHint() const
{
    // A line is laid out in whole pixels above and below its base, and the last one has to end within the field.
    const QFontMetricsF metrics(font());
    const double lineHeight = std::ceil(metrics.ascent()) + std::ceil(metrics.descent());
    return QSize(ZSkinService::DisplayWidth, static_cast<int>(shownLines() * lineHeight) + 2 * margin + 1);
}

void ZMultiLineEdit::linesChanged()
{
    const bool scrolls = document()->size().height() > mostLines;
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    updateGeometry();
}

void ZMultiLineEdit::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    // What had to be scrolled away in the lower field is in sight again.
    if (verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
        verticalScrollBar()->setValue(0);
    else
        ensureCursorVisible();
}

QSize ZMultiLineEdit::minimumSizeHint() const
{
    return QSize(0, 0);
}

// The one place for every way in but input methods, whose changes do not tell what is new in them.
void ZMultiLineEdit::cutToLength()
{
    const int length = document()->characterCount() - 1;
    const int excess = length - d->maxLength;
    if (d->maxLength < 0 || excess <= 0)
        return;
    const bool isInNew = excess <= d->added;
    const int end = isInNew ? std::min(d->position + d->added, length) : length;
    int begin = std::max(0, end - excess);
    const QChar first = document()->characterAt(begin);
    if (begin > 0 && first.isLowSurrogate() && document()->characterAt(begin - 1).isHighSurrogate())
        --begin;
    QTextCursor cut(document());
    cut.setPosition(begin);
    cut.setPosition(end, QTextCursor::KeepAnchor);
    cut.removeSelectedText();
}

void ZMultiLineEdit::keyPressEvent(QKeyEvent *event)
{
    bool isForDialog = false;
    switch (ZKeys::phoneKey(event->key())) {
    case ZKeys::PhoneKey::Select:
        isForDialog = event->key() != Qt::Key_Space;
        break;
    case ZKeys::PhoneKey::LeftSoftkey:
    case ZKeys::PhoneKey::RightSoftkey:
        isForDialog = true;
        break;
    case ZKeys::PhoneKey::Clear:
        isForDialog = event->key() != Qt::Key_Backspace || document()->isEmpty();
        break;
    case ZKeys::PhoneKey::Up:
    case ZKeys::PhoneKey::Down:
    case ZKeys::PhoneKey::None:
        break;
    }
    if (isForDialog)
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

// What of `text` has room when `given` characters make way for it.
QString ZMultiLineEdit::fitting(const QString &text, qsizetype given) const
{
    const qsizetype room = d->maxLength - (document()->characterCount() - 1 - given);
    if (d->maxLength < 0 || text.size() <= room)
        return text;
    const qsizetype fits = std::max<qsizetype>(0, room);
    const bool splitsPair = fits > 0 && text.at(fits - 1).isHighSurrogate();
    return text.left(splitsPair ? fits - 1 : fits);
}

void ZMultiLineEdit::inputMethodEvent(QInputMethodEvent *event)
{
    QInputMethodEvent plain(event->preeditString(), event->attributes());
    const qsizetype given = event->replacementLength() + textCursor().selectedText().size();
    plain.setCommitString(fitting(asOneParagraph(event->commitString()), given), event->replacementStart(),
                          event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&plain);
    event->setAccepted(plain.isAccepted());
}

void ZMultiLineEdit::insertFromMimeData(const QMimeData *source)
{
    textCursor().insertText(asOneParagraph(source->text()));
    ensureCursorVisible();
}
