#include "ui/widgets/ExplanationPanel.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/StatusTexts.h"
#include "ui/widgets/PaintedAccess.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int TextTop = 5;
constexpr int WordGap = 20; ///< behind the word
constexpr int SignGap = 8;  ///< at least, behind the phonetic symbol

} // namespace

ExplanationPanel::ExplanationPanel(QWidget *parent)
    : QWidget(parent)
{
    Public_Function::SetAccessibleRole(this, QAccessible::StaticText);
    setObjectName(u"picExplanation"_s);
    setAccessibleName(tr("Explanation"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void ExplanationPanel::SetTextSize(qreal points)
{
    setFont(Public_Function::InterfaceFont(points));
    m_phoneticFont = Public_Function::PhoneticFont(points);
    update();
}

void ExplanationPanel::SetTexts(const QString &word, const QString &phonetic, const QString &explanation)
{
    m_word = word.isEmpty() ? QString() : word + u"  "_s;
    m_phonetic = phonetic.isEmpty() ? QString() : u"/ "_s + phonetic + u" /"_s;
    m_explanation = explanation.simplified();
    const QString all = QString(m_word + m_phonetic + u' ' + m_explanation).simplified();
    setAccessibleDescription(all);
    // As rich text, the tooltip breaks its lines.
    setToolTip(all.isEmpty() ? QString() : u"<qt>"_s + all.toHtmlEscaped() + u"</qt>"_s);
    update();
}

void ExplanationPanel::Clear()
{
    SetTexts({}, {}, {});
}

void ExplanationPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(224, 238, 255));
    painter.setPen(QColor(40, 46, 58));
    Public_Function::PrintScaledText(painter, {0, TextTop}, m_word);
    const QFontMetrics metrics = fontMetrics();
    const int signs = metrics.horizontalAdvance(m_word) + WordGap;
    int left = signs;
    if (!m_phonetic.isEmpty()) {
        painter.setFont(m_phoneticFont);
        // On the line of the other texts, whatever the height of its own font.
        painter.drawText(signs, TextTop + metrics.ascent(), m_phonetic);
        const int painted = QFontMetrics(m_phoneticFont).horizontalAdvance(m_phonetic) + SignGap;
        left += qMax(painted, metrics.horizontalAdvance(m_phonetic));
        painter.setFont(font());
    }
    Public_Function::PrintScaledText(painter, {left, TextTop},
                                     metrics.elidedText(m_explanation, Qt::ElideRight, width() - left));
}
