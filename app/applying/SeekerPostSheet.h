#pragma once

#include "app/applying/SeekerPostSheetModel.h"

#include <QWidget>
#include <map>
#include <optional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;

namespace vl {

// A public seeker profile, posted for review without an account.
class SeekerPostSheet : public QWidget {
    Q_OBJECT
public:
    explicit SeekerPostSheet(ApplyServices services, QWidget* parent = nullptr);

    SeekerPostSheetModel& model() { return m_model; }

Q_SIGNALS:
    void closed();

private:
    void refresh();
    void readFields();
    void markBadField();

    SeekerPostSheetModel m_model;
    AppState& m_state;
    QStackedLayout* m_pages;
    QLabel* m_sub;
    std::map<QString, QLineEdit*> m_lines;
    QPlainTextEdit* m_about;
    QLabel* m_ageNote;
    QLabel* m_error;
    QPushButton* m_send;
    QProgressBar* m_busy;
    QLabel* m_sent;
    QPushButton* m_close;
    std::optional<QString> m_marked;
};

} // namespace vl
