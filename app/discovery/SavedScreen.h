#pragma once

#include "app/discovery/SavedJobs.h"

#include <QWidget>
#include <vector>

class QLabel;
class QListWidget;
class QMenu;
class QStackedWidget;

namespace vl {

class AppContext;
class UndoBar;

// The starred listings. A row opens its listing on the board; rows are removed from the
// context menu or with the Delete key, one or many, and come back with Undo for a few seconds.
class SavedScreen : public QWidget {
    Q_OBJECT
public:
    explicit SavedScreen(AppContext& context, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rebuild();
    void retext();
    void removeSelected();
    void undoRemoval();
    void open(const QString& ref);
    QString webLink(const QString& ref) const;
    void fillMenu(QMenu& menu, const QString& ref);

    AppContext& m_context;
    QLabel* m_title = nullptr;
    QStackedWidget* m_states = nullptr;
    QListWidget* m_list = nullptr;
    QLabel* m_empty = nullptr;
    UndoBar* m_undo = nullptr;
    std::vector<SavedJobs::Placed> m_removed;
};

} // namespace vl
