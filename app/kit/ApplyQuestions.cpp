#include "app/kit/ApplyQuestions.h"

#include "app/kit/Make.h"
#include "core/applying/AnswerText.h"
#include "core/l10n/L10n.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTimeZone>
#include <QVBoxLayout>

namespace vl {

namespace {

std::vector<QString> optionsOf(const FormSpecDTO::Field& field)
{
    return field.options.value_or(std::vector<QString>{});
}

} // namespace

ApplyQuestions::ApplyQuestions(std::vector<FormSpecDTO::Field> fields, Lang lang, Answer answer,
                               QWidget* parent)
    : QWidget(parent)
    , m_fields(std::move(fields))
    , m_answer(std::move(answer))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_heading = make::label(this, "name");
    layout->addWidget(m_heading);
    for (const auto& field : m_fields) {
        auto* box = new QWidget(this);
        box->setObjectName(QStringLiteral("question-") + field.id);
        auto* column = new QVBoxLayout(box);
        column->setContentsMargins(0, 4, 0, 4);
        auto* label = make::label(box, "plain");
        label->setText(field.label + (field.required ? QStringLiteral(" *") : QString()));
        column->addWidget(label);
        if (!field.help.isEmpty()) {
            auto* help = make::label(box, "caption");
            help->setText(field.help);
            column->addWidget(help);
        }
        QWidget* input = editor(field);
        column->addWidget(input);
        layout->addWidget(box);
        m_labels[field.id] = label;
        m_editors[field.id] = input;
    }
    setLang(lang);
}

QWidget* ApplyQuestions::editor(const FormSpecDTO::Field& field)
{
    const QString id = field.id;
    if (field.type == QLatin1StringView("yesno") || field.type == QLatin1StringView("choice")) {
        auto* combo = new QComboBox(this);
        combo->addItem(QString(), QString());
        if (field.type == QLatin1StringView("yesno")) {
            combo->addItem(QString(), QStringLiteral("yes"));
            combo->addItem(QString(), QStringLiteral("no"));
            m_yesNo.push_back(combo);
        } else {
            for (const QString& option : optionsOf(field))
                combo->addItem(option, option);
        }
        connect(combo, &QComboBox::currentIndexChanged, this,
                [this, combo, id] { m_answer(id, combo->currentData().toString()); });
        return combo;
    }
    if (field.type == QLatin1StringView("multi")) {
        auto* column = new QWidget(this);
        auto* layout = new QVBoxLayout(column);
        layout->setContentsMargins(0, 0, 0, 0);
        auto chosen = std::make_shared<std::vector<QString>>();
        const auto options = optionsOf(field);
        for (const QString& option : options) {
            auto* tick = new QCheckBox(option, column);
            layout->addWidget(tick);
            if (!column->focusProxy())
                column->setFocusProxy(tick);
            connect(tick, &QCheckBox::toggled, this, [this, id, options, chosen, option](bool on) {
                if (on)
                    chosen->push_back(option);
                else
                    std::erase(*chosen, option);
                m_answer(id, AnswerText::multi(options, *chosen));
            });
        }
        return column;
    }
    if (field.type == QLatin1StringView("date")) {
        auto* date = new QDateEdit(this);
        date->setCalendarPopup(true);
        date->setSpecialValueText(QStringLiteral(" "));
        date->setMinimumDate(QDate(2000, 1, 1));
        date->setDate(date->minimumDate());
        connect(date, &QDateEdit::dateChanged, this, [this, id](QDate day) {
            m_answer(id, AnswerText::date(QDateTime(day, QTime(12, 0), QTimeZone("Asia/Tbilisi"))));
        });
        return date;
    }
    auto* line = new QLineEdit(this);
    if (field.type == QLatin1StringView("number"))
        line->setInputMethodHints(Qt::ImhDigitsOnly);
    connect(line, &QLineEdit::textChanged, this,
            [this, id](const QString& text) { m_answer(id, text); });
    return line;
}

void ApplyQuestions::markBad(const std::optional<QString>& id)
{
    for (auto& [field, label] : m_labels) {
        const bool bad = id && *id == field;
        Theme::setRole(label, bad ? "error" : "plain");
        Theme::setRole(m_editors[field], bad ? "error" : "plain");
    }
    if (id && id != m_marked && m_editors.contains(*id))
        m_editors[*id]->setFocus(Qt::OtherFocusReason);
    m_marked = id;
}

void ApplyQuestions::setLang(Lang lang)
{
    m_heading->setText(L10n::text(L10n::Key::applyQuestions, lang));
    for (QComboBox* combo : m_yesNo) {
        combo->setItemText(1, L10n::text(L10n::Key::yes, lang));
        combo->setItemText(2, L10n::text(L10n::Key::no, lang));
    }
}

} // namespace vl
