// The text of a message: wrapped, scrolled by whole lines when it is too long. Inside the toolkit only.
#pragma once

#include <QtGui/QTextLayout>
#include <QtWidgets/QWidget>

class QScrollBar;

class ZTextPane : public QWidget
{
public:
    ZTextPane(const QString &text, QWidget *parent);

    /// What it shows, a line a paragraph.
    QString message() const;

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

    /// Scrolls on the up, down, page, home and end keys; returns false for other keys, and when all of the text is
    /// on show.
    bool scrollByKey(int qtKey);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void alignLines();
    void layOut();
    void breakLines(int width) const;
    int textHeight() const;
    int linesFrom(int line) const;
    int linesBackFrom(int line) const;
    void scrollTo(int line);

    mutable QTextLayout text;
    mutable int brokenAt = -1;       // the width that the lines are broken for
    QScrollBar *scrollBar = nullptr; // made on first need
    int firstLine = 0;
    int lastFirstLine = 0; // which has the end of the text in sight
};
