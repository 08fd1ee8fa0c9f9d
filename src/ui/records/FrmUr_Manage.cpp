#include "ui/records/FrmUr_Manage.h"

#include "core/shell/Public_Define.h"
#include "core/shell/UserSettings.h"
#include "platform/Paths.h"
#include "ui/records/CharacterMistakesPage.h"
#include "ui/records/KeyMistakesPage.h"
#include "ui/records/ManageLayout.h"
#include "ui/records/OverviewPage.h"
#include "ui/records/PageTab.h"
#include "ui/records/RecordsPage.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/KeyHint.h"
#include "ui/widgets/TickBox.h"

#include <QButtonGroup>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ManageGap = 12;
constexpr int ManageEdge = 16;
/// Between the pages about everything and those of a group.
constexpr int TabGroupGap = 14;
constexpr int TabsBeforeGap = 3;

} // namespace

FrmUr_Manage::FrmUr_Manage(QWidget *owner)
    : SkinnedDialog(owner)
    , m_tabs(new QButtonGroup(this))
{
    setObjectName(u"FrmUr_Manage"_s);
    m_records.SetCurrentUser(Shared().CurrentUserName);
    const QSize page = ManageLayout::page;
    resize(2 * ManageEdge + ManageLayout::tab.width() + ManageGap + page.width(),
           TitleHeight() + 3 * ManageGap + page.height() + 32);
    // In the order in which Tab leads through the window.
    MakeTabs();
    MakePages();
    MakeControls();
    SkinDialog(u"Personal Management"_s);
    m_tabs->button(0)->setChecked(true);
    m_tabs->button(0)->setFocus();
}

void FrmUr_Manage::MakeTabs()
{
    const std::array<std::pair<QString, QString>, 7> tabs{{
        {u"XBtn_Zonghe"_s, u"BTN_UR_ZONGHE"_s},
        {u"XBtn_Jianwei"_s, u"BTN_UR_MISTAKEJIANWEI"_s},
        {u"XBtn_Hanzi"_s, u"BTN_UR_MISTAKEHANZI"_s},
        {u"XBtn_English"_s, u"BTN_UR_ENGLISH"_s},
        {u"XBtn_Pinyin"_s, u"BTN_UR_PINYIN"_s},
        {u"XBtn_Wubi"_s, u"BTN_UR_WUBI"_s},
        {u"XBtn_Exam"_s, u"BTN_UR_EXAM"_s},
    }};
    const SkinLibrary library;
    QPoint place(ManageEdge, TitleHeight() + ManageGap);
    for (int i = 0; i < static_cast<int>(tabs.size()); ++i) {
        const auto &[name, bitmap] = tabs[static_cast<std::size_t>(i)];
        auto *tab = new PageTab(name, QString(), this);
        tab->SetButton(bitmap, library);
        tab->setCheckable(true);
        tab->setAutoExclusive(true); // one of several, to those who cannot see it
        tab->move(place);
        m_tabs->addButton(tab, i);
        place.ry() += ManageLayout::tabStep + (i + 1 == TabsBeforeGap ? TabGroupGap : 0);
    }
}

void FrmUr_Manage::MakePages()
{
    const auto records = [this](const QString &suffix, const QString &accessible, const QString &background,
                                const QString &box, int group) {
        return new RecordsPage({u"Pic_"_s + suffix, accessible, background, box, suffix}, group, m_records,
                               this);
    };
    m_pages = {
        new OverviewPage(m_records, this),
        new KeyMistakesPage(m_records, this),
        new CharacterMistakesPage(m_records, this),
        records(u"English"_s, tr("English"), u"UR_ENGLISH_BACK"_s, u"ChkEnglish"_s, 0),
        records(u"Pinyin"_s, tr("Pinyin"), u"UR_pinyin_BACK"_s, u"ChkPinyin"_s, 1),
        records(u"Wubi"_s, tr("Wubi"), u"UR_WuBi_BACK"_s, u"ChkWuBi"_s, 2),
        records(u"Exam"_s, tr("Speed tests"), u"UR_Exam_BACK"_s, u"ChkExam"_s, 3),
    };
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        ManagePage *const page = m_pages[i];
        QAbstractButton *const tab = m_tabs->button(static_cast<int>(i));
        page->move(ManageEdge + ManageLayout::tab.width() + ManageGap, TitleHeight() + ManageGap);
        tab->setAccessibleName(page->accessibleName());
        tab->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(i))));
        Public_Function::ShowKey(tab);
        connect(tab, &QAbstractButton::toggled, this, [this, page](bool chosen) {
            if (chosen)
                ShowPage(page);
        });
        connect(page, &ManagePage::FocusLost, this, [this] { m_tabs->checkedButton()->setFocus(); });
    }
}

void FrmUr_Manage::MakeControls()
{
    const int top = TitleHeight() + 2 * ManageGap + ManageLayout::page.height();
    Chk_AlwaysTest = new TickBox(u"Chk_AlwaysTest"_s, tr("Offer the placement test at &login"), this);
    XBtn_ReTest = new SkinButton(u"XBtn_ReTest"_s, tr("&New placement test"), this);
    XBtn_ReTest->SetButton(u"BTN_UR_RETEST"_s, SkinLibrary());
    XBtn_ReTest->move(width() - ManageEdge - XBtn_ReTest->width(), top);
    Chk_AlwaysTest->setChecked(m_records.IfBeginTest());
    const QSize box = Chk_AlwaysTest->sizeHint();
    Chk_AlwaysTest->setGeometry(m_pages[0]->x() - 4, top + (XBtn_ReTest->height() - box.height()) / 2,
                                box.width(), box.height());
    SetDefaultButton(XBtn_ReTest);
    connect(Chk_AlwaysTest, &TickBox::toggled, this, &FrmUr_Manage::SetAlwaysTest);
    connect(XBtn_ReTest, &SkinButton::clicked, this, [this] { done(NewPlacementTest); });
}

void FrmUr_Manage::ShowPage(ManagePage *page)
{
    page->Refresh();
    page->show();
    page->raise();
    for (ManagePage *other : m_pages) {
        if (other != page)
            other->hide();
    }
}

void FrmUr_Manage::SetAlwaysTest(bool always)
{
    if (m_records.SetIfBeginTest(always))
        return;
    const QSignalBlocker blocker(Chk_AlwaysTest);
    Chk_AlwaysTest->setChecked(m_records.IfBeginTest());
    Public_Function::ShowMessage(
        tr("This was not stored. This folder cannot be written, or its disk is full:\n%1")
            .arg(Public_Function::NativePath(Public_Function::UserDir())),
        u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
}
