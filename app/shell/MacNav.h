#pragma once

#include "core/navigation/MacSection.h"

#include <QObject>

namespace vl {

class Router;

// The window's own navigation: the sidebar's section and its visibility, the Refresh count and
// the sheets the menus open.
class MacNav : public QObject {
    Q_OBJECT
public:
    // Follows the router: its tab picks a section, a pending route goes to the inbox and a
    // selected listing to the board.
    explicit MacNav(Router& router, QObject* parent = nullptr);

    MacSection section() const { return m_section; }
    bool sidebarShown() const { return m_sidebarShown; }
    int reloads() const { return m_reloads; }
    bool showPostVacancy() const { return m_showPostVacancy; }
    bool showPostSeeker() const { return m_showPostSeeker; }
    bool showDoor() const { return m_showDoor; }

    void setSection(MacSection section);
    // Next or previous place among the visible sections, wrapping at the ends.
    void stepSection(int delta, bool hiring);
    void setSidebarShown(bool shown);
    void reload();
    void setShowPostVacancy(bool show);
    void setShowPostSeeker(bool show);
    void setShowDoor(bool show);

Q_SIGNALS:
    void sectionChanged();
    void sidebarShownChanged();
    void reloadsChanged();
    void showPostVacancyChanged();
    void showPostSeekerChanged();
    void showDoorChanged();

private:
    MacSection m_section = MacSection::vacancies;
    bool m_sidebarShown = true;
    int m_reloads = 0;
    bool m_showPostVacancy = false;
    bool m_showPostSeeker = false;
    bool m_showDoor = false;
};

} // namespace vl
