#pragma once

#include "core/drills/AnsiKeyboard.h"
#include "ui/widgets/HeldGround.h"
#include "ui/widgets/HeldPicture.h"
#include "ui/widgets/KeyStroke.h"

#include <QBasicTimer>
#include <QHash>
#include <QWidget>

/// Keys drawn on the screen: the key to press next is lit (with Shift, where Shift is needed), keys that are
/// held down are sunk. It also tells whether what was typed is what was expected. What keys there are is the
/// business of the classes derived from it.
///
/// Changes are painted and described when the event loop runs again, so that the text that is typed, which a
/// person looks at, comes first.
class OnScreenKeys : public QWidget
{
    Q_OBJECT

public:
    OnScreenKeys(const QString &objectName, const QString &accessibleName, QWidget *parent);

    /// The character that is expected next; empty for none. One that no key types lights none.
    void SetPromptKey(const QString &character);
    QString PromptKey() const;

    /// False: the size of the 800-pixel layout, true: that of the 1024-pixel layout.
    virtual void SetSizeSwitch(bool large) = 0;
    /// 0: letters match in either case; any other: the case counts.
    void SetDisplayOption(int option);

    /// Sinks the key until KeyUp or ReleaseAllKeys.
    void KeyDown(const KeyStroke &stroke);
    void KeyUp(const KeyStroke &stroke);
    void ReleaseAllKeys();

    /// Compares a typed character with the prompt key of this moment. The outcome is held back until the
    /// drill has handled the character, so that the drill then knows both its new prompt key and what was
    /// missed.
    void Check(char32_t typed);
    /// Raises KeyChecked for the last Check.
    void CharacterHandled();

Q_SIGNALS:
    void KeyChecked(const QString &typed, bool right);

protected:
    struct Pictures
    {
        QString normal;
        QString prompt;
        QString pressed;
    };
    void SetPictures(const Pictures &names);

    virtual int KeyCount() const = 0;
    /// Where the key lies in the widget and in its pictures.
    virtual QRect KeyRect(int key) const = 0;
    virtual QString KeyName(int key) const = 0;
    virtual QString FingerName(int key) const = 0;
    virtual std::optional<AnsiStroke> StrokeFor(char32_t character) const = 0;
    virtual std::optional<int> KeyFor(const KeyStroke &stroke) const = 0;

    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct HeldKey
    {
        quint32 id;
        int key;
    };

    /// The keys cut out of a picture of the whole keyboard, which is let go when there are enough of them.
    struct LitKeys
    {
        HeldPicture picture;
        QHash<int, QPixmap> keys;
    };

    bool IsPressed(int key) const;
    bool IsPrompted(int key) const;
    void UpdateKey(std::optional<int> key);
    void ShowChangesSoon();
    void ShowChanges();
    void UpdatePrompt();
    void DescribeState();
    void PaintUnlit(QPainter &painter);
    void PaintKey(QPainter &painter, int key, const QRect &rect);
    const QPixmap &LitKey(LitKeys &lit, int key, const QRect &rect);
    void PaintPlainKey(QPainter &painter, int key) const;

    std::optional<char32_t> m_promptCharacter;
    std::optional<AnsiStroke> m_prompt;
    QList<HeldKey> m_held;
    bool m_caseCounts = false;
    QRegion m_changed; ///< keys that look otherwise now than they are painted
    bool m_showingSoon = false;

    struct Outcome
    {
        char32_t typed;
        bool right;
    };
    std::optional<Outcome> m_outcome;

    HeldGround m_unlit; ///< with all keys as they are when nothing is lit or sunk
    bool m_skinned = false;
    HeldPicture m_normalPicture;
    LitKeys m_prompted;
    LitKeys m_pressed;
    QBasicTimer m_cutTimer; ///< runs out when no key had to be cut out for a while
};
