#pragma once

#include "core/discovery/FormSpecDTO.h"
#include "core/l10n/Lang.h"

#include <QWidget>
#include <functional>
#include <map>
#include <optional>

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

    void markBad(const std::optional<QString>& id);

private:
    QWidget* editor(const FormSpecDTO::Field& field, Lang lang);

    std::vector<FormSpecDTO::Field> m_fields;
    Answer m_answer;
    std::map<QString, QLabel*> m_labels;
};

} // namespace vl
