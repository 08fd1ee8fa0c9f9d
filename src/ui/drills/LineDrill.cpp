#include "ui/drills/LineDrill.h"

#include "core/shell/Public_Define.h"
#include "ui/widgets/OnScreenKeyboard.h"
#include "ui/widgets/PaintNow.h"
#include "ui/widgets/SkinButton.h"
#include "ui/widgets/TypingLine.h"

using namespace Qt::Literals::StringLiterals;

LineDrill::LineDrill(const DrillFacts &facts, const LineDrillPlaces &places, Navigator &navigator,
                     QWidget *owner)
    : TypingDrill(facts, navigator, owner)
    , m_places(places)
    , PromptRTB(new TypingLine(u"PromptRTB"_s, tr("Line to type"), this))
    , InputRTB(new TypingLine(u"InputRTB"_s, tr("Typed so far"), this))
    , CXKeyBoard1(new OnScreenKeyboard(this))
    , m_session([this](const std::u32string &line) { return PromptRTB->Fits(line); })
{
    InputRTB->SetCaret(true);
    UseOnScreenKeys(CXKeyBoard1);
    CXKeyBoard1->SetDisplayOption(1);
}

void LineDrill::InitLayout()
{
    TypingDrill::InitLayout();
    const QPoint origin = Layout().origin;
    const LineDrillPlaces::InLayout &place = Layout().Pick(m_places.narrow, m_places.wide);
    const QFont font = TypingLine::TextFont(Shared().FontSizeTable[place.fontEntry] + place.morePoints);
    PromptRTB->setGeometry(place.prompt.translated(origin));
    InputRTB->setGeometry(place.input.translated(origin));
    PromptRTB->setFont(font);
    InputRTB->setFont(font);
    CXKeyBoard1->move(origin + place.keyboard);
    SetKeysSize();

    const SkinButton *lesson =
        AddRowButton(u"BtnSelectLesson"_s, tr("Select a &lesson"), u"BTN_SELECTLESSON"_s, 532, 680);
    const SkinButton *setting = AddRowButton(u"BtnSetting"_s, tr("&Settings"), u"BTN_OPERATION"_s, 644, 830);
    connect(lesson, &SkinButton::clicked, this, &LineDrill::OnSelectLesson);
    connect(setting, &SkinButton::clicked, this, &LineDrill::OnSetting);
}

void LineDrill::RestartLesson()
{
    Watch().Reset();
    PauseClock();
    m_session.Restart();
    UpdateStatus(true);
    ShowLine();
}

DrillCounts LineDrill::Counts() const
{
    return {m_session.CurrentItem(), m_session.ItemCount(), m_session.TotalKeys(),
            m_session.CorrectKeys(), m_session.ItemsDone(), false};
}

void LineDrill::ShowLine()
{
    TakeLine();
    ShowPlace();
}

void LineDrill::TakeLine()
{
    PromptRTB->SetLine(m_session.Line().text);
    InputRTB->SetLine({});
}

void LineDrill::ShowPlace()
{
    ShowPosition();
    ShowNext();
}

/// What belongs to the place beside the lines.
void LineDrill::ShowNext()
{
    ShowPromptKey(m_session.Expected());
    OnPlaceChanged();
}

void LineDrill::ShowPosition()
{
    const int position = m_session.Position();
    PromptRTB->SetPosition(position, position < PromptRTB->Length());
    InputRTB->SetPosition(position, false);
}

void LineDrill::TypeCharacter(char32_t typed, bool accepted)
{
    if (!accepted)
        return;
    const bool atLastSpace = m_session.Position() == m_session.Line().Length() - 1;
    if (typed == U'\b')
        TakeBack();
    else if (typed == U'\r' && atLastSpace && IsEnterTheLastSpace())
        Judge(U' ');
    else if (typed >= U' ') // Enter and Escape type nothing into one line
        Judge(typed);
}

void LineDrill::Judge(char32_t typed)
{
    const int position = m_session.Position();
    const LineSession::Outcome outcome = m_session.Type(typed);
    if (outcome.step == LineSession::Step::NextLine) {
        TakeLine();
    } else {
        const TypingLine::Look look = outcome.right ? TypingLine::Look::Right : TypingLine::Look::Wrong;
        if (position < PromptRTB->Length())
            PromptRTB->SetCharacter(position, m_session.Judged(), look);
        InputRTB->SetCharacter(position, typed, look);
    }
    ShowPosition();
    Public_Function::PaintNow(this);
    if (outcome.right)
        PlayRight(typed);
    else
        PlayWrong();
    ShowNext();
    if (outcome.step == LineSession::Step::LessonDone)
        CompleteLesson();
}

void LineDrill::TakeBack()
{
    if (!m_session.TakeBack())
        return;
    const int position = m_session.Position();
    InputRTB->Truncate(position);
    if (position < PromptRTB->Length())
        PromptRTB->SetCharacter(position, m_session.Expected(), TypingLine::Look::Untyped);
    ShowPosition();
    Public_Function::PaintNow(this);
    ShowNext();
}

QRect LineDrill::TypingArea() const
{
    return InputRTB->geometry();
}
