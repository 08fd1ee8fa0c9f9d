#pragma once

#include "core/drills/DrillLayout.h"
#include "ui/widgets/HeldGround.h"
#include "ui/widgets/KeyCap.h"

#include <QList>
#include <QWidget>
#include <string>

/// The key group to type, as a row of key caps named `PromptKey0`, `PromptKey1`... A group wider than the row
/// shows the part around the key to type.
class KeyCapRow : public QWidget
{
    Q_OBJECT

public:
    KeyCapRow(const DrillLayout &layout, QWidget *parent);

    /// Where in the row the caps are centred; -1 and below: the row's own centre.
    void SetCentre(int centre);

    /// Shows a group with the key at `promptIndex` to type next, none for -1. Keys before it count as typed.
    void ShowGroup(const std::u32string &group, int promptIndex);
    /// Moves on in the same group.
    void ShowPrompt(int promptIndex);

    QSize CapSize() const { return m_capSize; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    KeyCap::State StateAt(int index) const;
    void PlaceCaps();
    int LeftEdge() const;
    void KeepPromptVisible();

    HeldGround m_ground{this};
    KeyCapLook m_look;
    QSize m_capSize;
    int m_pitch;
    int m_centre = -1;
    int m_count = 0;
    int m_promptIndex = -1;
    int m_scroll = 0; ///< pixels by which a group wider than the row is moved to the left
    QList<KeyCap *> m_caps;
};
