#pragma once

#include "core/applying/CvCheckPayload.h"
#include "core/l10n/Lang.h"

#include <QFrame>
#include <optional>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace vl {

// The CV check's advice on a chosen file: the score in the look of its band, the words read,
// what matched and what is missing, and the findings in their three groups.
class CvCheckCard : public QFrame {
    Q_OBJECT
public:
    explicit CvCheckCard(QWidget* parent = nullptr);

    void show(const std::optional<CvCheckPayload>& check, bool checking, const QString& filename,
              bool hasLastCv, Lang lang);

Q_SIGNALS:
    void anotherFile();
    void lastCv();

private:
    void addGroup(FindingGroup group, const QString& heading, const CvCheckPayload& check);

    QLabel* m_file;
    QLabel* m_status;
    QLabel* m_score;
    QLabel* m_words;
    QLabel* m_terms;
    QWidget* m_findings;
    QVBoxLayout* m_findingsLayout;
    QLabel* m_keep;
    QPushButton* m_another;
    QPushButton* m_last;
};

} // namespace vl
