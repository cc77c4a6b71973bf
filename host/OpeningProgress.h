// How far the opening of the handset is, in the place of the panel, which comes after it.
#pragma once

#include <QtWidgets/QGroupBox>

class QProgressBar;

namespace host {

class Announcement;

class OpeningProgress : public QGroupBox
{
    Q_OBJECT

public:
    explicit OpeningProgress(QWidget *parent = nullptr);

    /// What is done, and how far it is, in percent, as handset::Settings::progress has it.
    void showStep(const QString &step, int percent);

private:
    Announcement *text;
    QProgressBar *bar;
};

} // namespace host
