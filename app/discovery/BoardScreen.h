#pragma once

#include "app/discovery/BoardModel.h"
#include "app/discovery/LedgerModel.h"

#include <QPointer>
#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QListView;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QHBoxLayout;
class QStackedWidget;
class QToolButton;

namespace vl {

class AppContext;
class FilterSheet;
class JobDetailView;
class LedgerDelegate;

// The board of vacancies with the listing open beside it. The screen binds BoardModel to the
// widgets and forwards what the reader does; the rules live in the model and the ledger.
class BoardScreen : public QWidget {
    Q_OBJECT
public:
    explicit BoardScreen(AppContext& context, QWidget* parent = nullptr);

    BoardModel& model() { return m_model; }
    LedgerModel& ledger() { return m_ledger; }

Q_SIGNALS:
    // The first rows of the board have been painted.
    void firstPageDrawn();
    // The plus action, for an anonymous reader: the employer's sign-in.
    void signInRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* buildHead();
    QWidget* buildBody();
    void retext();
    void refresh();
    void showLoadState();
    void retry();
    void refreshRails();
    void refreshFresh();
    void loadFirst(bool fresh);
    void reload();
    void maybeLoadMore();
    void followSelection();
    void arrangePanes();
    void orderTabs();
    void bringDetailForward();
    void openFilters();
    void openPostGate();

    AppContext& m_context;
    BoardModel m_model;
    LedgerModel m_ledger;
    LedgerDelegate* m_delegate = nullptr;
    QLineEdit* m_search = nullptr;
    QPushButton* m_filters = nullptr;
    QPushButton* m_post = nullptr;
    std::vector<QToolButton*> m_chips;
    QLabel* m_headline = nullptr;
    QLabel* m_nudge = nullptr;
    QWidget* m_fresh = nullptr;
    QLabel* m_freshTitle = nullptr;
    QHBoxLayout* m_freshRow = nullptr;
    QLabel* m_categoriesTitle = nullptr;
    QScrollArea* m_chipArea = nullptr;
    QScrollArea* m_freshArea = nullptr;
    QScrollArea* m_categoriesArea = nullptr;
    QScrollArea* m_citiesArea = nullptr;
    QHBoxLayout* m_categoriesRow = nullptr;
    QLabel* m_citiesTitle = nullptr;
    QHBoxLayout* m_citiesRow = nullptr;
    QProgressBar* m_reloading = nullptr;
    QWidget* m_failLine = nullptr;
    QLabel* m_failText = nullptr;
    QPushButton* m_failRetry = nullptr;
    QStackedWidget* m_states = nullptr;
    QListView* m_list = nullptr;
    QLabel* m_empty = nullptr;
    QLabel* m_errorTitle = nullptr;
    QLabel* m_errorBody = nullptr;
    QPushButton* m_retry = nullptr;
    QWidget* m_column = nullptr;
    QWidget* m_detailSide = nullptr;
    QPushButton* m_back = nullptr;
    JobDetailView* m_detail = nullptr;
    QPointer<FilterSheet> m_filterSheet;
    bool m_drawn = false;
    bool m_selecting = false;
    bool m_wasLoading = false;
    bool m_narrow = false;
    bool m_short = false;
    bool m_detailInFront = false;
};

} // namespace vl
