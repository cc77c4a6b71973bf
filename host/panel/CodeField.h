// Where the digits of a PIN or PUK are typed.
#pragma once

#include <QtWidgets/QLineEdit>

#include <array>

namespace host {

/// Shows a mark for each digit. The digits are never in the text of the field, whose copies nobody overwrites, but in
/// one place of its own that is.
class CodeField : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr std::size_t mostDigits = 8;

    explicit CodeField(QWidget *parent = nullptr);
    ~CodeField() override;

    /// The digits where they are; valid until the next change.
    QByteArrayView digits() const { return {kept.data(), static_cast<qsizetype>(used)}; }
    void forget();

signals:
    void digitsChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool type(const QKeyEvent *event);
    void takeBack();
    void showMarks();

    std::array<char, mostDigits> kept{};
    std::size_t used = 0;
};

} // namespace host
