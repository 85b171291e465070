#include "app/shell/MacNav.h"

#include "app/shell/Router.h"

namespace vl {

namespace {

MacSection sectionOfTab(int tab)
{
    switch (tab) {
    case 1:
        return MacSection::forYou;
    case 2:
        return MacSection::inbox;
    case 3:
        return MacSection::account;
    default:
        return MacSection::vacancies;
    }
}

} // namespace

MacNav::MacNav(Router& router, QObject* parent)
    : QObject(parent)
{
    connect(&router, &Router::tabChanged, this,
            [this, &router] { setSection(sectionOfTab(router.tab())); });
    connect(&router, &Router::pendingChanged, this, [this, &router] {
        if (router.pending())
            setSection(MacSection::inbox);
    });
    connect(&router, &Router::selectedJobChanged, this, [this, &router] {
        if (router.selectedJob())
            setSection(MacSection::vacancies);
    });
}

void MacNav::setSection(MacSection section)
{
    if (m_section == section)
        return;
    m_section = section;
    Q_EMIT sectionChanged();
}

void MacNav::stepSection(int delta, bool hiring)
{
    setSection(stepMacSection(m_section, delta, hiring));
}

void MacNav::setSidebarShown(bool shown)
{
    if (m_sidebarShown == shown)
        return;
    m_sidebarShown = shown;
    Q_EMIT sidebarShownChanged();
}

void MacNav::reload()
{
    ++m_reloads;
    Q_EMIT reloadsChanged();
}

void MacNav::setShowPostVacancy(bool show)
{
    if (m_showPostVacancy == show)
        return;
    m_showPostVacancy = show;
    Q_EMIT showPostVacancyChanged();
}

void MacNav::setShowPostSeeker(bool show)
{
    if (m_showPostSeeker == show)
        return;
    m_showPostSeeker = show;
    Q_EMIT showPostSeekerChanged();
}

void MacNav::setShowDoor(bool show)
{
    if (m_showDoor == show)
        return;
    m_showDoor = show;
    Q_EMIT showDoorChanged();
}

} // namespace vl
