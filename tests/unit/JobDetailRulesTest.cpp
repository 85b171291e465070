#include "core/discovery/JobDetailRules.h"

#include "core/l10n/L10n.h"

#include <gtest/gtest.h>

using namespace vl;
using namespace vl::JobDetailRules;
using L10n::Key;

namespace {

struct Paths {
    bool canApply;
    std::optional<bool> applyOnWeb;
    std::optional<int> contactChannels;
    bool applyUrl;
    Action expected;
};

} // namespace

TEST(JobDetailRules, TheFirstPathThatHoldsIsOffered)
{
    const Paths table[] = {
        {true, std::nullopt, 3, true, Action::apply},
        {true, false, std::nullopt, false, Action::apply},
        {true, true, 2, true, Action::applyAndContactsOnSite},
        {false, true, 0, true, Action::applyOnSite},
        {true, true, std::nullopt, false, Action::applyOnSite},
        {false, false, 1, true, Action::contactsOnSite},
        {false, std::nullopt, 0, true, Action::external},
        {false, std::nullopt, std::nullopt, false, Action::none},
    };
    for (const Paths& row : table) {
        JobDetail job;
        job.canApply = row.canApply;
        job.applyOnWeb = row.applyOnWeb;
        job.contactChannels = row.contactChannels;
        if (row.applyUrl)
            job.applyUrl = QStringLiteral("https://elsewhere.example/job");
        EXPECT_EQ(action(job), row.expected) << int(&row - table);
    }
    EXPECT_EQ(actionButton(Action::none), std::nullopt);
    EXPECT_EQ(actionNote(Action::none), std::nullopt);
    EXPECT_EQ(actionButton(Action::contactsOnSite), std::nullopt);
    EXPECT_EQ(actionNote(Action::contactsOnSite), Key::contactsOnSite);
    EXPECT_EQ(actionButton(Action::applyAndContactsOnSite), Key::applyOnSite);
    EXPECT_EQ(actionButton(Action::external), Key::applyExternal);
}

TEST(JobDetailRules, PayLineNamesThePeriodOrSaysNegotiable)
{
    EXPECT_EQ(payLine(1000, 1500, QStringLiteral("month"), Lang::en),
              QStringLiteral("₾1000–1500 / month"));
    EXPECT_EQ(payLine(std::nullopt, 80, QStringLiteral("day"), Lang::en),
              QStringLiteral("₾80 per day"));
    EXPECT_EQ(payLine(200, std::nullopt, QStringLiteral("fixed"), Lang::en),
              QStringLiteral("₾200 for the job"));
    EXPECT_EQ(
        payLine(15, 15, QStringLiteral("hour"), Lang::en).endsWith(QStringLiteral("per hour")),
        true);
    EXPECT_EQ(payLine(50, std::nullopt, QStringLiteral("shift"), Lang::en),
              QStringLiteral("₾50 per day"));
    EXPECT_EQ(payLine(std::nullopt, std::nullopt, QStringLiteral("month"), Lang::en),
              QStringLiteral("Negotiable"));
    EXPECT_EQ(payLine(std::nullopt, std::nullopt, QStringLiteral("month"), Lang::ka),
              L10n::text(Key::negotiable, Lang::ka));
}

TEST(JobDetailRules, NotesFollowTheListingsFlags)
{
    JobDetail plain;
    EXPECT_EQ(notes(plain, Lang::en), QStringList{QStringLiteral("0 views")});

    JobDetail job;
    job.translated = true;
    job.aggregated = true;
    job.direct = true;
    job.featured = true;
    job.views = 12;
    job.publishedAt = QStringLiteral("2026-03-01T09:00:00Z");
    job.deadline = QStringLiteral("2026-10-24");
    const QStringList lines = notes(job, Lang::en);
    ASSERT_EQ(lines.size(), 7);
    EXPECT_EQ(lines[0], L10n::text(Key::translatedNote, Lang::en));
    EXPECT_EQ(lines[1], QStringLiteral("Sourced from a third-party listing."));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("Direct · Posted here by the employer.")));
    EXPECT_EQ(lines[3], QStringLiteral("Featured"));
    // The deadline is a calendar date, the publication an instant; both read as dates.
    EXPECT_TRUE(lines[4].startsWith(QStringLiteral("Apply by ")));
    EXPECT_TRUE(lines[4].contains(QStringLiteral("24"))) << lines[4].toStdString();
    EXPECT_TRUE(lines[5].startsWith(QStringLiteral("Posted ")));
    EXPECT_GT(lines[5].size(), QStringLiteral("Posted ").size());
    EXPECT_EQ(lines[6], QStringLiteral("12 views"));
    EXPECT_EQ(dateText(QStringLiteral("2026-13-01"), Lang::en), QString());
    EXPECT_EQ(dateText(std::nullopt, Lang::en), QString());
}
