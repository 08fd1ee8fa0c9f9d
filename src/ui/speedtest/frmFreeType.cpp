#include "ui/speedtest/frmFreeType.h"

#include "core/engine/KFreeType.h"
#include "core/engine/TextUnits.h"
#include "core/shell/Public_Define.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/speedtest/DlgTestSelect.h"
#include "ui/speedtest/DlgTestSetting.h"
#include "ui/widgets/ProgressBox.h"
#include "ui/widgets/TypingLine.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

frmFreeType::frmFreeType(Navigator &navigator, QWidget *owner)
    : TestWindow(u"frmFreeType"_s, navigator, std::make_unique<KFreeType>(), owner)
{
    Shared().TestSource = 1;
    // Nothing is judged, and there is no end to come nearer to.
    labVeracity->hide();
    picProgress->hide();
}

void frmFreeType::Load()
{
    Engine().m_nMaxCols = std::min(Page().Columns(), TypingSession::MostCols);
    Engine().Clear();
    ShowLessonTitle(u"Speed Test/"_s + GetModeName());
    MakeReady();
}

void frmFreeType::FillRow(int row, int line)
{
    Page().Input(row)->SetLine(std::u32string(Engine().InputLine(line)));
}

bool frmFreeType::ShowTyped(int row)
{
    const int position = Engine().m_nCurCol - 1;
    const auto line = Engine().InputLine(Engine().CurrentLine());
    Page().Input(row)->SetCharacter(position, line[static_cast<std::size_t>(position)],
                                    TypingLine::Look::Untyped);
    return false;
}

void frmFreeType::ShowTakenBack(int row)
{
    Page().Input(row)->Truncate(Engine().m_nCurCol);
}

bool frmFreeType::IsLineComplete() const
{
    int columns = 0;
    for (const char32_t character : Engine().InputLine(Engine().CurrentLine()))
        columns += Public_Function::GetTextWidth(character);
    return columns >= Engine().m_nMaxCols;
}

void frmFreeType::OnTab(Source source)
{
    AbortTest();
    if (source != Source::Screen)
        return;
    Shared().TestSource = 0;
    GiveWayTo([this] { Leader().OpenSpeedTest(this); });
}

void frmFreeType::SelectLesson()
{
    DlgTestSelect dialog(this);
    const QPointer<frmFreeType> self(this);
    dialog.exec();
    if (!self || IsClosed())
        return;
    FocusTypingBox();
    if (!dialog.Result())
        return;
    AbortTest();
    if (dialog.ChosenPath().isEmpty()) {
        Load();
        return;
    }
    Shared().TestDisplayMode[1] = 3;
    Shared().TestFile[1] = dialog.ChosenPath();
    GiveWayTo([this] { Leader().OpenSpeedTest(this); });
}

void frmFreeType::ChangeSettings()
{
    DlgTestSetting dialog(this);
    dialog.SetNewLine(Shared().NewLine);
    dialog.SetKeySound(IsKeySoundOn());
    const QPointer<frmFreeType> self(this);
    dialog.exec();
    if (!self || IsClosed())
        return;
    FocusTypingBox();
    if (!dialog.ReturnValue())
        return;
    SetKeySound(dialog.KeySound());
    Shared().NewLine = dialog.NewLine();
    if (IsTestRunning())
        ApplyNewLine();
    else
        Load();
}

void frmFreeType::paintEvent(QPaintEvent *event)
{
    TestWindow::paintEvent(event);
    // The picture is shared with the test from paper. Its names of the figures that there are none of here
    // disappear under the plate's own ground, a column of it without anything on it, drawn out.
    constexpr QRect unused(450, TestLayout::panelTop, 494, 50);
    const QRect place = unused.translated(Layout().origin);
    const qreal ratio = devicePixelRatioF();
    if (!event->rect().intersects(place))
        return;
    const QPixmap ground = SkinLibrary().Bitmap(u"TEST_FUGAI_BACK"_s, ratio);
    if (ground.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(
        QRectF(place), ground,
        QRectF(unused.x() * ratio, (unused.y() - TestLayout::tabHeight) * ratio, 1, unused.height() * ratio));
}
