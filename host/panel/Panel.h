// What stands beside the phone: the controls of the simulation and the telephone's figures.
#pragma once

#include "Line.h"

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtWidgets/QScrollArea>

#include <array>

class QTabBar;
class QVBoxLayout;

namespace host {

class Faults;
class PanelSection;

/// What the command line calls the pages, in their order.
inline constexpr std::array<const char *, 5> pageNames{"calls", "charging", "sim", "data", "failures"};

/// The line, and under it a page for each side of the telephone: a column of sections, each a class of its own. A new
/// role of the telephone is a new section.
class Panel : public QScrollArea
{
    Q_OBJECT

public:
    struct Setup {
        QString stateDirectory;   ///< empty for a telephone in memory
        QString notice;           ///< what the user should know of its opening, or empty
        Faults *faults = nullptr; ///< of the telephone that the phone's libraries talk to; null: it has none
    };

    /// `line`, and what `setup` points to, outlive the panel.
    Panel(Line &line, const Setup &setup, QWidget *parent = nullptr);

    /// Shows the page of row `index` of pageNames; a page that there is not changes nothing.
    void choosePage(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addPages(QVBoxLayout *column, const Setup &setup);
    void addPage(QVBoxLayout *column, const QString &title, const QList<PanelSection *> &ofPage);
    void showPage(int index);
    PanelSection *keep(PanelSection *section);
    void refresh();

    Line &line;
    QTabBar *tabs;
    QList<QWidget *> pages; ///< one a tab
    QList<PanelSection *> sections;
    QTimer tick; ///< runs while a call or a session goes on without a change being told
};

} // namespace host
