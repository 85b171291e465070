#pragma once

#include "app/applying/CvUpdateSheetModel.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace vl {

// A newer CV for one application: the hint, the updates left, the file, a note, and Send.
class CvUpdateSheet : public QWidget {
    Q_OBJECT
public:
    CvUpdateSheet(ApplyServices services, QString ref, QString key, CandidateCvDTO cv,
                  QWidget* parent = nullptr);

    CvUpdateSheetModel& model() { return m_model; }

Q_SIGNALS:
    void closed();

private:
    void refresh();

    CvUpdateSheetModel m_model;
    AppState& m_state;
    QLabel* m_hint;
    QLabel* m_left;
    QLabel* m_file;
    QPushButton* m_choose;
    QLineEdit* m_note;
    QLabel* m_error;
    QPushButton* m_send;
    QProgressBar* m_busy;
};

} // namespace vl
