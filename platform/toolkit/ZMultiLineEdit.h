// The entry field of a dialog.
#pragma once

#include "classname.h"

#include <QtWidgets/QPlainTextEdit>

#include <memory>

class ZMultiLineEdit : public QPlainTextEdit
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    explicit ZMultiLineEdit(QWidget *parent, const char *name = nullptr);
    ~ZMultiLineEdit() override;

    /// At most `length` characters can be typed or pasted; negative (the initial state) is no limit.
    void setMaxLength(int length);
    int maxLength() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
