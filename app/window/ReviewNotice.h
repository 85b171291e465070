#pragma once

#include <QFrame>
#include <QUrl>

class QLabel;
class QPushButton;

namespace vl {

class AppState;
class ReviewAsk;

// The invitation to write a review, as a card: shown while ReviewAsk says so, gone for good
// once the review is written or the card dismissed.
class ReviewNotice : public QFrame {
    Q_OBJECT
public:
    // `reviewPage` is where writing the review happens.
    ReviewNotice(ReviewAsk& review, AppState& appState, std::function<QUrl()> reviewPage,
                 QWidget* parent = nullptr);

private:
    void refresh();

    ReviewAsk& m_review;
    AppState& m_appState;
    std::function<QUrl()> m_reviewPage;
    QLabel* m_title;
    QLabel* m_body;
    QPushButton* m_write;
    QPushButton* m_later;
};

} // namespace vl
