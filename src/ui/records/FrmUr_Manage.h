#pragma once

#include "core/records/IUserRecord.h"
#include "ui/skin/SkinnedDialog.h"

#include <array>

class ManagePage;
class QButtonGroup;
class SkinButton;
class TickBox;

/// "Personal Management": the history of the user who is logged in, on seven pages, from which records and
/// mistakes are deleted. `exec()` returns 0, or NewPlacementTest when the user asks for one.
class FrmUr_Manage final : public SkinnedDialog
{
    Q_OBJECT

public:
    static constexpr int NewPlacementTest = 4;

    explicit FrmUr_Manage(QWidget *owner);

private:
    void MakeTabs();
    void MakePages();
    void MakeControls();
    void ShowPage(ManagePage *page);
    void SetAlwaysTest(bool always);

    IUserRecord m_records;
    QButtonGroup *m_tabs;
    std::array<ManagePage *, 7> m_pages{};
    TickBox *Chk_AlwaysTest = nullptr;
    SkinButton *XBtn_ReTest = nullptr;
};
