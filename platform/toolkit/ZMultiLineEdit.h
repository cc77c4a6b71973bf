// The entry field of a dialog.
#pragma once

#include "qt/classname.h"

#include <QtWidgets/QPlainTextEdit>

#include <memory>

/// A field for one paragraph: it wraps, and is as high as its lines ask for, up to a few, after which it
/// scrolls. No line break gets in by key, paste, drop or input method; those of a pasted text become blanks.
/// There is no undo.
///
/// Keys that are not the field's own go to the dialog around it: the select key (not the space bar, which types
/// a blank), the softkeys and the clear key. The Backspace key takes away the character before the cursor, and
/// is the clear key only in an empty field.
class ZMultiLineEdit : public QPlainTextEdit
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `parent` owns the field; `name` (Latin-1, may be null) is the object name.
    explicit ZMultiLineEdit(QWidget *parent, const char *name = nullptr);
    ~ZMultiLineEdit() override;

    /// No more than `length` characters (UTF-16 code units; a character of two is never split) can be in the
    /// field, however they come. What is too much of a new text is left out; a text that is too long already is
    /// cut at its end. Negative, the initial state, is no limit.
    void setMaxLength(int length);
    int maxLength() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int shownLines() const;
    void linesChanged();
    void cutToLength();
    QString fitting(const QString &text, qsizetype given) const;

    struct Private;
    std::unique_ptr<Private> d;
};
