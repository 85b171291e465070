#include "app/applying/SeekerPostSheet.h"

#include "app/kit/Make.h"
#include "app/shell/AppState.h"
#include "core/l10n/L10n.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace vl {

namespace {

using L10n::Key;

// The single-line fields, in the order shown, with their placeholder texts.
constexpr std::pair<const char*, Key> lines[] = {{"name", Key::fieldName},
                                                 {"email", Key::fieldEmail},
                                                 {"phone", Key::fieldPhone},
                                                 {"age", Key::ageField},
                                                 {"headline", Key::headlineField}};

} // namespace

SeekerPostSheet::SeekerPostSheet(ApplyServices services, QWidget* parent)
    : QWidget(parent)
    , m_model(services)
    , m_state(services.state)
{
    setObjectName(QStringLiteral("seekerPostSheet"));
    auto* form = new QWidget;
    auto* layout = new QVBoxLayout(form);
    m_sub = make::label(form, "subtitle");
    layout->addWidget(m_sub);
    for (const auto& [name, key] : lines) {
        auto* line = new QLineEdit(form);
        line->setObjectName(QStringLiteral("post-") + QLatin1StringView(name));
        m_lines[QString::fromLatin1(name)] = line;
        layout->addWidget(line);
    }
    m_ageNote = make::label(form, "caption");
    layout->insertWidget(5, m_ageNote);
    m_about = new QPlainTextEdit(form);
    m_error = make::label(form, "error");
    m_send = make::button(form, "primary");
    m_busy = make::busyBar(form);
    layout->addWidget(m_about);
    layout->addWidget(m_error);
    layout->addWidget(m_send);
    layout->addWidget(m_busy);
    QWidget* done = make::sentPage(m_sent, m_close);
    m_pages = new QStackedLayout(this);
    m_pages->addWidget(form);
    m_pages->addWidget(done);

    connect(&m_model, &SeekerPostSheetModel::changed, this, &SeekerPostSheet::refresh);
    connect(&m_state, &AppState::langChanged, this, &SeekerPostSheet::refresh);
    connect(m_send, &QPushButton::clicked, this, [this] {
        readFields();
        m_model.send();
    });
    connect(m_close, &QPushButton::clicked, this, &SeekerPostSheet::closed);
    refresh();
}

void SeekerPostSheet::readFields()
{
    SeekerPostForm& form = m_model.form;
    form.name = m_lines[QStringLiteral("name")]->text();
    form.email = m_lines[QStringLiteral("email")]->text();
    form.phone = m_lines[QStringLiteral("phone")]->text();
    form.age = m_lines[QStringLiteral("age")]->text();
    form.headline = m_lines[QStringLiteral("headline")]->text();
    form.about = m_about->toPlainText();
}

void SeekerPostSheet::refresh()
{
    const Lang lang = m_state.lang();
    m_sub->setText(L10n::text(Key::seekerPostSub, lang));
    for (const auto& [name, key] : lines)
        m_lines[QString::fromLatin1(name)]->setPlaceholderText(L10n::text(key, lang));
    m_ageNote->setText(L10n::text(Key::agePrivateNote, lang));
    m_about->setPlaceholderText(L10n::text(Key::aboutField, lang));
    markBadField();
    m_error->setVisible(m_model.error().has_value());
    m_error->setText(m_model.error().value_or(QString()));
    m_send->setText(L10n::text(Key::submitReview, lang));
    m_send->setVisible(!m_model.working());
    m_busy->setVisible(m_model.working());
    m_sent->setText(L10n::text(Key::seekerPosted, lang));
    m_close->setText(L10n::text(Key::close, lang));
    m_pages->setCurrentIndex(m_model.sent() ? 1 : 0);
}

// The refused field is framed, and takes the focus when the refusal is new.
void SeekerPostSheet::markBadField()
{
    const auto& bad = m_model.badField();
    QWidget* badWidget = nullptr;
    for (auto& [name, line] : m_lines) {
        Theme::setRole(line, bad == name ? "error" : "plain");
        if (bad == name)
            badWidget = line;
    }
    Theme::setRole(m_about, bad == QLatin1StringView("about") ? "error" : "plain");
    if (bad == QLatin1StringView("about"))
        badWidget = m_about;
    if (badWidget && bad != m_marked)
        badWidget->setFocus(Qt::OtherFocusReason);
    m_marked = bad;
}

} // namespace vl
