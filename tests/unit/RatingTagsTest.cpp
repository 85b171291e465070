#include "core/l10n/RatingTags.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace vl;

TEST(RatingTags, LabelsInThreeLanguages)
{
    EXPECT_EQ(RatingTags::label(u"on_time", Lang::en), QStringLiteral("On time"));
    EXPECT_EQ(RatingTags::label(u"again", Lang::ka), QStringLiteral("კიდევ ვიმუშავებდი ერთად"));
    EXPECT_EQ(RatingTags::label(u"no_show", Lang::ru), QStringLiteral("Не пришёл"));
    EXPECT_EQ(RatingTags::label(u"payment_issue", Lang::en), QStringLiteral("Payment issue"));
}

TEST(RatingTags, UnknownIdShowsAsItself)
{
    EXPECT_EQ(RatingTags::label(u"punctual", Lang::en), QStringLiteral("punctual"));
    EXPECT_EQ(RatingTags::label(u"On_time", Lang::ka), QStringLiteral("On_time"));
}

TEST(RatingTags, EachSideInItsOrderWithALabelForEvery)
{
    const QStringList worker{"on_time", "quality", "friendly", "again", "late", "no_show", "comms"};
    const QStringList employer{"paid", "clear", "respectful", "again", "payment_issue", "unclear"};
    QStringList offeredForWorker;
    for (const QLatin1StringView id : RatingTags::forWorker())
        offeredForWorker.append(id);
    QStringList offeredForEmployer;
    for (const QLatin1StringView id : RatingTags::forEmployer())
        offeredForEmployer.append(id);
    EXPECT_EQ(offeredForWorker, worker);
    EXPECT_EQ(offeredForEmployer, employer);
    for (const QString& id : worker + employer) {
        for (const Lang lang : allLangs)
            EXPECT_NE(RatingTags::label(id, lang), id) << id.toStdString();
    }
}
