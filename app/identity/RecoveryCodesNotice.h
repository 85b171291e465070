#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace vl {

class AppState;
class CandidateAuth;

// The recovery codes the service has just issued, shown once until the person says they saved
// them.
class RecoveryCodesNotice : public QFrame {
    Q_OBJECT
public:
    RecoveryCodesNotice(CandidateAuth& auth, AppState& appState, QWidget* parent = nullptr);

private:
    void refresh();
    void saveToFile();

    CandidateAuth& m_auth;
    AppState& m_appState;
    QLabel* m_lead;
    QLabel* m_codes;
    QPushButton* m_copy;
    QPushButton* m_saveFile;
    QPushButton* m_done;
};

} // namespace vl
