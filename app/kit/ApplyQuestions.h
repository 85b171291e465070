#pragma once

#include "core/discovery/FormSpecDTO.h"
#include "core/l10n/Lang.h"

#include <QWidget>
#include <functional>
#include <map>
#include <optional>

class QComboBox;
class QLabel;

namespace vl {

// The employer's own questions, one editor per field type, writing each answer by the field's
// id. A type the client does not know is asked as text; the unanswered field is marked.
class ApplyQuestions : public QWidget {
    Q_OBJECT
public:
    using Answer = std::function<void(const QString& id, const QString& value)>;

    ApplyQuestions(std::vector<FormSpecDTO::Field> fields, Lang lang, Answer answer,
                   QWidget* parent = nullptr);

    // Marks the field's label and editor; a field newly marked takes the focus.
    void markBad(const std::optional<QString>& id);
    void setLang(Lang lang);

private:
    QWidget* editor(const FormSpecDTO::Field& field);

    std::vector<FormSpecDTO::Field> m_fields;
    Answer m_answer;
    QLabel* m_heading;
    std::map<QString, QLabel*> m_labels;
    std::map<QString, QWidget*> m_editors;
    std::vector<QComboBox*> m_yesNo;
    std::optional<QString> m_marked;
};

} // namespace vl
