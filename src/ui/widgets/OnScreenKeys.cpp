#include "ui/widgets/OnScreenKeys.h"

#include "core/drills/KeyDrillSession.h"
#include "platform/FreeMemory.h"
#include "ui/skin/Fonts.h"
#include "ui/widgets/PaintedAccess.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PictureKept = 3000; // milliseconds

} // namespace

OnScreenKeys::OnScreenKeys(const QString &objectName, const QString &accessibleName, QWidget *parent)
    : QWidget(parent)
    , m_unlit(this, [this](QPainter &painter) { PaintUnlit(painter); })
{
    Public_Function::SetAccessibleRole(this, QAccessible::Graphic);
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::NoFocus);
}

void OnScreenKeys::SetPictures(const Pictures &names)
{
    m_normalPicture.SetName(names.normal);
    m_prompted = {HeldPicture(names.prompt), {}};
    m_pressed = {HeldPicture(names.pressed), {}};
    m_unlit.Renew();
    update();
}

void OnScreenKeys::SetPromptKey(const QString &character)
{
    const std::u32string characters = character.toStdU32String();
    const auto prompt = characters.empty() ? std::nullopt : std::optional(characters.front());
    if (prompt == m_promptCharacter)
        return;
    m_promptCharacter = prompt;
    UpdatePrompt();
}

QString OnScreenKeys::PromptKey() const
{
    return m_promptCharacter ? QString::fromUcs4(&*m_promptCharacter, 1) : QString();
}

void OnScreenKeys::SetDisplayOption(int option)
{
    m_caseCounts = option != 0;
}

void OnScreenKeys::UpdatePrompt()
{
    const auto before =
        std::exchange(m_prompt, m_promptCharacter ? StrokeFor(*m_promptCharacter) : std::nullopt);
    for (const auto &stroke : {before, m_prompt}) {
        if (stroke) {
            UpdateKey(stroke->key);
            UpdateKey(stroke->shiftKey);
        }
    }
    ShowChangesSoon();
}

void OnScreenKeys::KeyDown(const KeyStroke &stroke)
{
    const auto key = KeyFor(stroke);
    const bool known = std::any_of(m_held.cbegin(), m_held.cend(),
                                   [&stroke](const HeldKey &held) { return held.id == stroke.id; });
    if (!key || known) // a held key repeats
        return;
    m_held.append({stroke.id, *key});
    UpdateKey(key);
}

void OnScreenKeys::KeyUp(const KeyStroke &stroke)
{
    const auto held = std::find_if(m_held.begin(), m_held.end(),
                                   [&stroke](const HeldKey &one) { return one.id == stroke.id; });
    if (held == m_held.end())
        return;
    const int key = held->key;
    m_held.erase(held);
    UpdateKey(key);
}

void OnScreenKeys::ReleaseAllKeys()
{
    if (m_held.isEmpty())
        return;
    for (const HeldKey &held : std::exchange(m_held, {}))
        UpdateKey(held.key);
}

void OnScreenKeys::Check(char32_t typed)
{
    const bool right = m_promptCharacter &&
                       (m_caseCounts ? typed == *m_promptCharacter : IsSameKey(typed, *m_promptCharacter));
    m_outcome = Outcome{typed, right};
}

void OnScreenKeys::CharacterHandled()
{
    if (const auto outcome = std::exchange(m_outcome, std::nullopt))
        Q_EMIT KeyChecked(QString::fromUcs4(&outcome->typed, 1), outcome->right);
}

bool OnScreenKeys::IsPressed(int key) const
{
    return std::any_of(m_held.cbegin(), m_held.cend(),
                       [key](const HeldKey &held) { return held.key == key; });
}

bool OnScreenKeys::IsPrompted(int key) const
{
    return m_prompt && (m_prompt->key == key || m_prompt->shiftKey == key);
}

void OnScreenKeys::UpdateKey(std::optional<int> key)
{
    if (!key)
        return;
    m_changed += KeyRect(*key);
    ShowChangesSoon();
}

void OnScreenKeys::ShowChangesSoon()
{
    if (!std::exchange(m_showingSoon, true))
        QMetaObject::invokeMethod(this, &OnScreenKeys::ShowChanges, Qt::QueuedConnection);
}

void OnScreenKeys::ShowChanges()
{
    m_showingSoon = false;
    update(std::exchange(m_changed, {}));
    DescribeState();
}

void OnScreenKeys::DescribeState()
{
    QStringList parts;
    if (m_prompt) {
        const QString key = KeyName(m_prompt->key);
        parts += tr("Next key: %1, %2")
                     .arg(m_prompt->shiftKey ? tr("%1 and %2").arg(KeyName(*m_prompt->shiftKey), key) : key,
                          FingerName(m_prompt->key));
    }
    if (!m_held.isEmpty()) {
        QStringList pressed;
        for (const HeldKey &held : std::as_const(m_held))
            pressed += KeyName(held.key);
        parts += tr("Pressed: %1").arg(pressed.join(u", "_s));
    }
    setAccessibleDescription(parts.join(u". "_s));
}

void OnScreenKeys::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    for (const QRect &exposed : event->region()) {
        painter.setClipRect(exposed); // copied fast only through a clip that is one rectangle
        m_unlit.Paint(painter, exposed);
        for (int key = 0; key < KeyCount(); ++key) {
            const QRect rect = KeyRect(key);
            if (exposed.intersects(rect))
                PaintKey(painter, key, rect);
        }
    }
}

void OnScreenKeys::PaintUnlit(QPainter &painter)
{
    m_skinned = m_normalPicture.Draw(painter, {}, rect());
    m_normalPicture.LetGo();
}

void OnScreenKeys::PaintKey(QPainter &painter, int key, const QRect &rect)
{
    if (!m_skinned)
        PaintPlainKey(painter, key);
    else if (IsPressed(key))
        painter.drawPixmap(rect.topLeft(), LitKey(m_pressed, key, rect));
    else if (IsPrompted(key))
        painter.drawPixmap(rect.topLeft(), LitKey(m_prompted, key, rect));
}

const QPixmap &OnScreenKeys::LitKey(LitKeys &lit, int key, const QRect &rect)
{
    const qreal ratio = devicePixelRatioF();
    QPixmap &cut = lit.keys[key];
    if (cut.devicePixelRatio() == ratio && !cut.isNull())
        return cut;
    cut = QPixmap((QSizeF(rect.size()) * ratio).toSize());
    cut.setDevicePixelRatio(ratio);
    cut.fill(Qt::transparent);
    QPainter painter(&cut);
    lit.picture.Draw(painter, {}, rect);
    m_cutTimer.start(PictureKept, this);
    return cut;
}

void OnScreenKeys::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_cutTimer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_cutTimer.stop();
    m_prompted.picture.LetGo();
    m_pressed.picture.LetGo();
    Public_Function::GiveBackFreeMemory();
}

void OnScreenKeys::PaintPlainKey(QPainter &painter, int key) const
{
    QColor ground(240, 242, 246);
    if (IsPressed(key))
        ground = QColor(190, 196, 208);
    else if (IsPrompted(key))
        ground = QColor(255, 164, 84);
    const QRect rect = KeyRect(key);
    painter.fillRect(rect, QColor(141, 148, 167));
    painter.fillRect(rect.adjusted(1, 1, -1, -1), ground);
    painter.setPen(QColor(80, 80, 80));
    painter.setFont(Public_Function::InterfaceFont(9));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextWordWrap, KeyName(key));
}
