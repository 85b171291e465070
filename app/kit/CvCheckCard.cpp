#include "app/kit/CvCheckCard.h"

#include "app/kit/Make.h"
#include "core/l10n/L10n.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vl {

namespace {

const char* markOf(FindingGroup group)
{
    switch (group) {
    case FindingGroup::fix:
        return "✕";
    case FindingGroup::improve:
        return "△";
    case FindingGroup::good:
        break;
    }
    return "✓";
}

QString joined(const std::vector<QString>& words)
{
    QStringList list(words.begin(), words.end());
    return list.join(QStringLiteral(", "));
}

} // namespace

CvCheckCard::CvCheckCard(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("cvCheckCard"));
    Theme::setRole(this, "card");
    auto* layout = new QVBoxLayout(this);
    m_file = make::label(this, "name");
    m_status = make::label(this, "caption");
    m_score = make::label(this, "title");
    m_score->setObjectName(QStringLiteral("cvCheckScore"));
    m_words = make::label(this, "caption");
    m_terms = make::label(this, "caption");
    m_findings = new QWidget(this);
    m_findingsLayout = new QVBoxLayout(m_findings);
    m_findingsLayout->setContentsMargins(0, 0, 0, 0);
    m_keep = make::label(this, "caption");
    auto* actions = new QHBoxLayout;
    m_another = make::button(this, "link");
    m_last = make::button(this, "link");
    actions->addWidget(m_another);
    actions->addWidget(m_last);
    actions->addStretch();
    for (QWidget* widget :
         {static_cast<QWidget*>(m_file), static_cast<QWidget*>(m_status),
          static_cast<QWidget*>(m_score), static_cast<QWidget*>(m_words),
          static_cast<QWidget*>(m_terms), m_findings, static_cast<QWidget*>(m_keep)})
        layout->addWidget(widget);
    layout->addLayout(actions);
    connect(m_another, &QPushButton::clicked, this, &CvCheckCard::anotherFile);
    connect(m_last, &QPushButton::clicked, this, &CvCheckCard::lastCv);
}

void CvCheckCard::show(const std::optional<CvCheckPayload>& check, bool checking,
                       const QString& filename, bool hasLastCv, Lang lang)
{
    using L10n::Key;
    m_file->setText(filename);
    m_status->setVisible(checking || (check && !check->readable));
    m_status->setText(checking ? L10n::text(Key::cvChecking, lang)
                               : (check ? check->copy.failed : QString()));
    const bool scored = check && check->readable && !checking;
    m_score->setVisible(scored);
    m_words->setVisible(scored);
    m_terms->setVisible(scored);
    m_findings->setVisible(scored);
    while (QLayoutItem* item = m_findingsLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    if (scored) {
        m_score->setProperty("band", check->band);
        m_score->setText(QStringLiteral("%1 %2 · %3")
                             .arg(check->score)
                             .arg(check->copy.outOf, check->bandLabel));
        m_words->setText(L10n::text(Key::cvCheckWords, lang, check->words));
        QStringList terms;
        if (!check->matched.empty())
            terms << QStringLiteral("✓ ") + joined(check->matched);
        if (!check->missing.empty())
            terms << QStringLiteral("✕ ") + joined(check->missing);
        m_terms->setText(terms.join(u'\n'));
        addGroup(FindingGroup::fix, check->copy.fix, *check);
        addGroup(FindingGroup::improve, check->copy.improve, *check);
        addGroup(FindingGroup::good, check->copy.good, *check);
    }
    m_keep->setText(L10n::text(Key::cvCheckKeep, lang));
    m_another->setText(L10n::text(Key::cvCheckAnother, lang));
    m_last->setText(L10n::text(Key::cvCheckLastCv, lang));
    m_last->setVisible(hasLastCv);
}

void CvCheckCard::addGroup(FindingGroup group, const QString& heading, const CvCheckPayload& check)
{
    QStringList lines;
    for (const CvFinding& finding : check.findings) {
        if (findingGroup(finding.severity) != group)
            continue;
        QString line = QString::fromUtf8(markOf(group)) + u' ' + finding.text;
        if (!finding.terms.empty())
            line += QStringLiteral(" (") + joined(finding.terms) + u')';
        lines << line;
    }
    if (lines.isEmpty())
        return;
    auto* title = make::label(m_findings, "name");
    title->setText(heading);
    auto* body = make::label(m_findings, "plain");
    body->setText(lines.join(u'\n'));
    m_findingsLayout->addWidget(title);
    m_findingsLayout->addWidget(body);
}

} // namespace vl
