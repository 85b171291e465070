#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QMenu;
class QStackedWidget;

namespace vl {

class AppContext;

// The starred listings. A row opens its listing on the board; rows are removed from the
// context menu or with the Delete key, one or many.
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
    void open(const QString& ref);
    QString webLink(const QString& ref) const;
    void fillMenu(QMenu& menu, const QString& ref, const QString& title);

    AppContext& m_context;
    QLabel* m_title = nullptr;
    QStackedWidget* m_states = nullptr;
    QListWidget* m_list = nullptr;
    QLabel* m_empty = nullptr;
};

} // namespace vl
