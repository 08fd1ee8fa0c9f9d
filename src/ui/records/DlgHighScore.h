#pragma once

#include "ui/skin/SkinnedDialog.h"

class SkinButton;
class TopListModel;
class TopListView;

/// "Top List ": the speed test results of all users of the installation, fastest first.
class DlgHighScore final : public SkinnedDialog
{
    Q_OBJECT

public:
    /// Reads the records of all users.
    explicit DlgHighScore(QWidget *owner);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void MakeControls();

    TopListModel *m_entries;
    TopListView *m_list;
    SkinButton *BtnOk;
};
