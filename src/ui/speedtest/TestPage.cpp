#include "ui/speedtest/TestPage.h"

#include "core/shell/Public_Define.h"
#include "ui/widgets/TypingBox.h"
#include "ui/widgets/TypingLine.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;
using TestLayout::DisplayMode;

void TestPage::Build(DisplayMode mode, const QPoint &origin)
{
    for (const auto *boxes : {&m_subjects, &m_inputs}) {
        for (TypingLine *box : *boxes)
            delete box;
    }
    m_subjects.clear();
    m_inputs.clear();
    m_mode = mode;
    const QFont font = TypingLine::TextFont(Shared().FontSizeTable[TestLayout::FontEntry(mode)]);
    const auto add = [&](std::vector<TypingLine *> &boxes, const QString &objectName, const QString &name,
                         const QRect &place) {
        auto *box = new TypingLine(objectName, name, m_window);
        box->setFont(font);
        box->setGeometry(place.translated(origin));
        box->setVisible(true);
        boxes.push_back(box);
    };
    for (int row = 0; row < Rows(); ++row) {
        if (mode != DisplayMode::TypedAlone) {
            add(m_subjects, u"rtfSubject"_s + QString::number(row),
                QCoreApplication::translate("TestPage", "Text to copy, line %1").arg(row + 1),
                TestLayout::PromptBox(mode, row));
        }
        if (mode != DisplayMode::TypedOver) {
            add(m_inputs, u"rtfInput"_s + QString::number(row),
                QCoreApplication::translate("TestPage", "Typed text, line %1").arg(row + 1),
                TestLayout::InputBox(mode, row));
        }
    }
}

int TestPage::Columns() const
{
    return Input(0)->Columns();
}

TypingLine *TestPage::Subject(int row) const
{
    return m_subjects.empty() ? nullptr : m_subjects[static_cast<std::size_t>(row)];
}

TypingLine *TestPage::Input(int row) const
{
    return (m_inputs.empty() ? m_subjects : m_inputs)[static_cast<std::size_t>(row)];
}

void TestPage::ShowPosition(int row, int position, TypingBox *box) const
{
    const bool over = m_mode == DisplayMode::TypedOver;
    if (TypingLine *subject = Subject(row))
        subject->SetPosition(position, position < subject->Length());
    TypingLine *input = Input(row);
    if (!over) {
        input->SetPosition(position, false);
        input->SetCaret(box->hasFocus());
    }
    box->PlaceAt(input->CellRect(position).translated(input->pos()), input->geometry().right(),
                 over ? TypingBox::Composition::Below : TypingBox::Composition::InLine);
}

void TestPage::HidePosition() const
{
    for (TypingLine *subject : m_subjects)
        subject->SetPosition(-1, false);
    for (TypingLine *input : m_inputs)
        input->SetCaret(false);
}
