#include "ui/drills/ArticlePage.h"

#include "core/drills/DrillLayout.h"
#include "core/shell/Public_Define.h"
#include "ui/drills/ArticleBox.h"
#include "ui/drills/ArticleLayout.h"
#include "ui/widgets/CharacterGlyphs.h"
#include "ui/widgets/TypingLine.h"

#include <QCoreApplication>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char32_t returnSign = U'↵';
constexpr int lineEndLength = 2; // CR LF

using ArticleLine = ArticleSession::Line;

const ArticleLine &LineOf(const ArticleSession &session, int line)
{
    return session.Page()[static_cast<std::size_t>(line)];
}

/// The length of a line without its end.
int TextLength(const ArticleLine &line)
{
    return static_cast<int>(line.text.size()) - lineEndLength;
}

TypingLine::Look MarkLook(const ArticleLine &line, int column)
{
    switch (line.marks[static_cast<std::size_t>(column)]) {
    case ArticleSession::Mark::Untyped:
        break;
    case ArticleSession::Mark::Right:
        return TypingLine::Look::Right;
    case ArticleSession::Mark::Wrong:
        return TypingLine::Look::Wrong;
    }
    return TypingLine::Look::Untyped;
}

std::vector<TypingLine::Look> MarkLooks(const ArticleLine &line, std::size_t length)
{
    std::vector<TypingLine::Look> looks;
    for (std::size_t column = 0; column < length; ++column)
        looks.push_back(MarkLook(line, static_cast<int>(column)));
    return looks;
}

int FontPoints(DisplayForm form, const DrillLayout &layout)
{
    const auto &table = Shared().FontSizeTable;
    if (layout.IsWide())
        return table[0];
    return form == DisplayForm::LinePairs ? table[1] - 2 : table[1];
}

QString BoxName(DisplayForm form, int index)
{
    const auto say = [](const char *text) { return QCoreApplication::translate("ArticlePage", text); };
    const bool input = ArticleLayout::IsInputBox(form, index);
    if (form == DisplayForm::LinePairs)
        return say(input ? "Typed text, line %1" : "Text to copy, line %1").arg(index / 2 + 1);
    return say(input ? "Typed text" : "Text to copy");
}

} // namespace

void ArticlePage::Build(DisplayForm form, const DrillLayout &layout)
{
    for (ArticleBox *box : m_boxes)
        delete box;
    m_boxes.clear();
    m_form = form;
    const QFont font = TypingLine::TextFont(FontPoints(form, layout));
    const int rows = form == DisplayForm::LinePairs ? 1 : ArticleSession::LinesPerPage(form);
    for (int index = 0; index < ArticleLayout::BoxCount(form); ++index) {
        const QRect place = ArticleLayout::Box(form, index, layout.IsWide()).translated(layout.origin);
        auto *box = new ArticleBox(u"RTB"_s + QString::number(index), BoxName(form, index), place, rows, font,
                                   m_window);
        box->setVisible(true);
        m_boxes.push_back(box);
    }
}

QFont ArticlePage::TextFont() const
{
    return PromptRow(0)->font();
}

LineMeasure ArticlePage::Measure() const
{
    TypingLine *row = PromptRow(0);
    const auto glyphs = CharacterGlyphs::In(row->font());
    const int padding = row->CellRect(0).left();
    const qreal lineEnd = glyphs->Advance(returnSign) + glyphs->Advance(U' ');
    return {[glyphs](const QString &text) {
                qreal wide = 0;
                for (const char32_t character : text.toStdU32String())
                    wide += glyphs->Advance(character);
                return static_cast<int>(std::floor(wide));
            },
            row->width() - 2 * padding - static_cast<int>(std::ceil(lineEnd))};
}

TypingLine *ArticlePage::PromptRow(int line) const
{
    if (m_form == DisplayForm::LinePairs)
        return m_boxes[static_cast<std::size_t>(2 * line)]->Row(0);
    return m_boxes.front()->Row(line);
}

TypingLine *ArticlePage::InputRow(int line) const
{
    switch (m_form) {
    case DisplayForm::LinePairs:
        return m_boxes[static_cast<std::size_t>(2 * line + 1)]->Row(0);
    case DisplayForm::PageAndInput:
        return m_boxes.back()->Row(line);
    case DisplayForm::InPlace:
        break;
    }
    return nullptr;
}

void ArticlePage::ShowAll(const ArticleSession &session)
{
    if (m_boxes.empty())
        return;
    for (int line = 0; line < ArticleSession::LinesPerPage(m_form); ++line)
        ShowLine(session, line);
}

void ArticlePage::ShowLine(const ArticleSession &session, int line)
{
    TypingLine *input = InputRow(line);
    if (line >= static_cast<int>(session.Page().size())) {
        PromptRow(line)->SetLine({});
        if (input)
            input->SetLine({});
        return;
    }
    const ArticleLine &content = LineOf(session, line);
    const auto length = static_cast<std::size_t>(TextLength(content));
    PromptRow(line)->SetLine(content.text.substr(0, length), MarkLooks(content, length));
    if (input)
        input->SetLine(content.typed, MarkLooks(content, content.typed.size()));
    ShowLineEnd(session, line);
    ShowPosition(session, line);
}

void ArticlePage::ShowStep(const ArticleSession &session, int line, int column)
{
    if (m_boxes.empty())
        return;
    ShowCharacter(session, line, column);
    if (session.CurrentLine() != line) {
        ShowLineEnd(session, line);
        ShowPosition(session, line);
    }
    if (session.CurrentLine() < static_cast<int>(session.Page().size())) {
        ShowCharacter(session, session.CurrentLine(), session.Column());
        ShowLineEnd(session, session.CurrentLine());
        ShowPosition(session, session.CurrentLine());
    }
}

void ArticlePage::ShowCharacter(const ArticleSession &session, int line, int column)
{
    if (line >= static_cast<int>(session.Page().size()))
        return;
    const ArticleLine &content = LineOf(session, line);
    if (column >= TextLength(content))
        return;
    const auto at = static_cast<std::size_t>(column);
    TypingLine *prompt = PromptRow(line);
    if (prompt->LookAt(column) != MarkLook(content, column))
        prompt->SetCharacter(column, content.text[at], MarkLook(content, column));
    TypingLine *input = InputRow(line);
    if (!input)
        return;
    input->Truncate(static_cast<int>(content.typed.size()));
    if (at < content.typed.size())
        input->SetCharacter(column, content.typed[at], MarkLook(content, column));
}

void ArticlePage::ShowLineEnd(const ArticleSession &session, int line)
{
    const ArticleLine &content = LineOf(session, line);
    const int length = TextLength(content);
    const int column = session.CurrentLine() == line ? session.Column() : 0;
    // The line feed has a place of its own behind the sign while it is the one to type, or was typed wrong.
    const bool lineFeed = column > length || content.marks.back() != ArticleSession::Mark::Untyped;
    const int shown = lineFeed ? 2 : column == length ? 1 : 0;
    TypingLine *prompt = PromptRow(line);
    prompt->Truncate(length + shown);
    for (int i = 0; i < shown; ++i)
        prompt->SetCharacter(length + i, i == 0 ? returnSign : U' ', MarkLook(content, length + i));
}

void ArticlePage::ShowPosition(const ArticleSession &session, int line)
{
    const bool current = session.CurrentLine() == line;
    PromptRow(line)->SetPosition(current ? session.Column() : -1, current);
    if (TypingLine *input = InputRow(line)) {
        input->SetPosition(current ? input->Length() : -1, false);
        input->SetCaret(current);
    }
}

QRect ArticlePage::TypingArea(const ArticleSession &session) const
{
    if (m_boxes.empty() || session.CurrentLine() >= static_cast<int>(session.Page().size()))
        return {};
    TypingLine *input = InputRow(session.CurrentLine());
    TypingLine *row = input ? input : PromptRow(session.CurrentLine());
    const QRect cell = row->CellRect(input ? input->Length() : session.Column());
    return {row->mapTo(m_window, cell.topLeft()), cell.size()};
}
