#include "app/discovery/FilterSheet.h"

#include "app/discovery/BoardModel.h"
#include "app/kit/Theme.h"
#include "app/shell/AppState.h"
#include "app/shell/Taxonomy.h"
#include "core/l10n/L10n.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vl {

using L10n::Key;

FilterSheet::FilterSheet(BoardModel& board, const Taxonomy& taxonomy, AppState& app,
                         std::function<void()> onChange, QWidget* parent)
    : QDialog(parent)
    , m_board(board)
    , m_taxonomy(taxonomy)
    , m_bindings(board, std::move(onChange))
    , m_lang(app.lang())
{
    setObjectName(QStringLiteral("vl.filters"));
    setWindowTitle(L10n::text(Key::filters, m_lang));
    resize(520, 640);

    auto* scroll = new QScrollArea(this);
    Theme::setRole(scroll, "plain");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* page = new QWidget(scroll);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(22, 18, 22, 18);
    layout->setSpacing(6);

    m_which = addGroup(page, L10n::text(Key::filterWhich, m_lang),
                       {L10n::text(Key::allListings, m_lang), L10n::text(Key::directOnly, m_lang)},
                       "which");
    auto* why = new QLabel(L10n::text(Key::directWhy, m_lang), page);
    why->setWordWrap(true);
    Theme::setRole(why, "caption");
    layout->addWidget(why);
    connect(m_which, &QButtonGroup::idClicked, this,
            [this](int id) { m_bindings.setDirect(id == 1); });

    m_sort = addGroup(page, L10n::text(Key::sortLabel, m_lang),
                      {L10n::text(Key::sortNew, m_lang), L10n::text(Key::sortPay, m_lang)}, "sort");
    connect(m_sort, &QButtonGroup::idClicked, this, [this](int id) {
        m_bindings.setSort(id == 1 ? std::optional<QString>(QStringLiteral("pay")) : std::nullopt);
    });

    QStringList cities{L10n::text(Key::allGeorgia, m_lang)};
    for (const auto& entry : taxonomy.cities())
        cities << entry.label(m_lang);
    m_city = addGroup(page, L10n::text(Key::city, m_lang), cities, "city");
    connect(m_city, &QButtonGroup::idClicked, this, [this](int id) {
        m_bindings.setCity(id == 0
                               ? std::nullopt
                               : std::optional<QString>(m_taxonomy.cities()[size_t(id - 1)].key));
    });

    QStringList categories{L10n::text(Key::all, m_lang)};
    for (const auto& entry : taxonomy.categories())
        categories << entry.label(m_lang);
    m_category = addGroup(page, L10n::text(Key::category, m_lang), categories, "category");
    connect(m_category, &QButtonGroup::idClicked, this, [this](int id) {
        m_bindings.setCategory(
            id == 0 ? std::nullopt
                    : std::optional<QString>(m_taxonomy.categories()[size_t(id - 1)].key));
    });
    layout->addStretch(1);
    scroll->setWidget(page);

    m_total = new QLabel(this);
    m_total->setObjectName(QStringLiteral("vl.filters.total"));
    Theme::setRole(m_total, "name");
    auto* clear = new QPushButton(L10n::text(Key::clear, m_lang), this);
    clear->setObjectName(QStringLiteral("vl.filters.clear"));
    connect(clear, &QPushButton::clicked, this, [this] {
        m_bindings.clear();
        showChoices();
    });
    auto* close = new QPushButton(L10n::text(Key::filterClose, m_lang), this);
    close->setObjectName(QStringLiteral("vl.filters.close"));
    Theme::setRole(close, "primary");
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(22, 10, 22, 16);
    foot->addWidget(m_total, 1);
    foot->addWidget(clear);
    foot->addWidget(close);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll, 1);
    outer->addLayout(foot);

    connect(&m_board, &BoardModel::changed, this,
            [this] { m_total->setText(L10n::text(Key::bdFound, m_lang, m_bindings.total())); });
    m_total->setText(L10n::text(Key::bdFound, m_lang, m_bindings.total()));
    showChoices();
}

QButtonGroup* FilterSheet::addGroup(QWidget* parent, const QString& title,
                                    const QStringList& labels, const char* name)
{
    auto* layout = static_cast<QVBoxLayout*>(parent->layout());
    auto* heading = new QLabel(title, parent);
    Theme::setRole(heading, "section");
    layout->addSpacing(10);
    layout->addWidget(heading);
    auto* group = new QButtonGroup(parent);
    group->setObjectName(QStringLiteral("vl.filters.") + QLatin1StringView(name));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    const int columns = labels.size() > 4 ? 2 : 1;
    for (int i = 0; i < labels.size(); ++i) {
        auto* option = new QRadioButton(labels[i], parent);
        option->setObjectName(
            QStringLiteral("vl.filters.%1.%2").arg(QLatin1StringView(name)).arg(i));
        group->addButton(option, i);
        grid->addWidget(option, i / columns, i % columns);
    }
    layout->addLayout(grid);
    return group;
}

void FilterSheet::showChoices()
{
    m_which->button(m_bindings.direct() ? 1 : 0)->setChecked(true);
    m_sort->button(m_bindings.sort() ? 1 : 0)->setChecked(true);
    int city = 0;
    for (size_t i = 0; i < m_taxonomy.cities().size(); ++i) {
        if (m_bindings.city() == m_taxonomy.cities()[i].key)
            city = int(i) + 1;
    }
    m_city->button(city)->setChecked(true);
    int category = 0;
    for (size_t i = 0; i < m_taxonomy.categories().size(); ++i) {
        if (m_bindings.category() == m_taxonomy.categories()[i].key)
            category = int(i) + 1;
    }
    m_category->button(category)->setChecked(true);
}

} // namespace vl
