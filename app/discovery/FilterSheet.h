#pragma once

#include "app/discovery/FilterBindings.h"
#include "core/l10n/Lang.h"

#include <QDialog>

class QButtonGroup;
class QLabel;
class QPushButton;

namespace vl {

class AppState;
class BoardModel;
class Taxonomy;

// The board's filters: which listings, the order, the city and the field. Every choice reloads
// the board at once, so the count under the open sheet is live.
class FilterSheet : public QDialog {
    Q_OBJECT
public:
    FilterSheet(BoardModel& board, const Taxonomy& taxonomy, AppState& app,
                std::function<void()> onChange, QWidget* parent = nullptr);

private:
    QButtonGroup* addGroup(QWidget* parent, const QString& title, const QStringList& labels,
                           const char* name);
    void showChoices();

    BoardModel& m_board;
    const Taxonomy& m_taxonomy;
    FilterBindings m_bindings;
    QButtonGroup* m_which = nullptr;
    QButtonGroup* m_sort = nullptr;
    QButtonGroup* m_city = nullptr;
    QButtonGroup* m_category = nullptr;
    QLabel* m_total = nullptr;
    Lang m_lang;
};

} // namespace vl
