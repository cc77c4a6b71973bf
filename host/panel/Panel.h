// What stands beside the phone: the controls of the simulation and the handset's figures.
#pragma once

#include "host/Line.h"

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <array>
#include <functional>

class QScrollArea;
class QTabBar;
class QVBoxLayout;

namespace host {

class Faults;
class PanelSection;

/// What the command line calls the pages, in their order.
inline constexpr std::array<const char *, 6> pageNames{"calls", "charging", "sim", "data", "recent", "failures"};

/// The line, and under it a page for each side of the handset: a column of sections, each a class of its own. A new
/// role of the handset is a new section. A page is made when it is shown for the first time. Where there is no room for all
/// of it the page is scrolled, and the line stays.
class Panel : public QWidget
{
    Q_OBJECT

public:
    struct Setup {
        QString stateDirectory;           ///< empty for a handset in memory
        QString notice;                   ///< what the user should know of its opening, or empty
        Faults *faults = nullptr;         ///< of the handset that the phone's libraries talk to; null: it has none
        std::function<void()> renew = {}; ///< begins with a new telephone; null: that is not offered
        int page = 0;                     ///< shown first, as by choosePage()
    };

    /// As wide as it is with its own texts; translated ones may need more.
    static constexpr int usualWidth = 340;

    /// `line`, and what `setup` points to, outlive the panel.
    Panel(Line &line, const Setup &setup, QWidget *parent = nullptr);

    /// Shows the page of row `index` of pageNames; a page that there is not changes nothing.
    void choosePage(int index);

    /// As wide as usual, unless its texts need more at the least.
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    using MakeSections = std::function<QList<PanelSection *>()>;

    /// A side of the handset: one a tab.
    struct Page {
        MakeSections makeSections;
        QWidget *widget = nullptr; ///< until it is shown
    };

    void addPages(const Setup &setup);
    void addPage(const QString &title, MakeSections makeSections);
    void showPage(int index);
    void makeRoom();
    QWidget *makePage(const Page &page);
    PanelSection *keep(PanelSection *section);
    void refresh();

    Line &line;
    QTabBar *tabs;
    QScrollArea *scrolled; ///< the pages
    QVBoxLayout *pageColumn;
    QList<Page> pages;
    QList<PanelSection *> sections; ///< of the line and of the pages that are made
    QTimer tick{this};              ///< runs while a call or a session goes on without a change being told
};

} // namespace host
