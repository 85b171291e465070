#pragma once

#include "app/applying/MyApplicationsModel.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;
class QStackedLayout;

namespace vl {

// My applications, in the account section on the job seeker's side: the merged list, newest
// first, with its loading, empty and error states.
class MyApplicationsScreen : public QWidget {
    Q_OBJECT
public:
    explicit MyApplicationsScreen(ApplyServices services, QWidget* parent = nullptr);

    MyApplicationsModel& model() { return m_model; }

Q_SIGNALS:
    // The person opened one: its reference and the stored key (empty: the session opens it).
    void openApplication(const QString& ref, const QString& key);

private:
    void refresh();

    MyApplicationsModel m_model;
    AppState& m_state;
    QStackedLayout* m_pages;
    QLabel* m_title;
    QWidget* m_loading;
    QLabel* m_empty;
    QLabel* m_error;
    QPushButton* m_retry;
    QListWidget* m_list;
};

} // namespace vl
