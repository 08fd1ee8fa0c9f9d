#pragma once

#include "ui/skin/SkinnedDialog.h"

#include <QList>
#include <QStringList>
#include <array>

class Chart;
class QLabel;
class QRadioButton;
class SkinButton;
class TypingSession;

/// Shown when a test ends: rate, speed, backspaces, level, and the speed curve or the mistyped characters.
class DlgTestResult final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgTestResult(QWidget *owner);

    /// Reads the finished session. `imeName` is the input method that was active when the test ended, empty
    /// for none. False, and nothing happens, without a session, which is not kept.
    bool CalChartData(const TypingSession *engine, const QString &imeName);

    /// Selects and draws a chart: 0 the speed curve, 1 the wrong characters.
    void SelectChart(int index);

private:
    void MakeControls();
    void DrawChart(int index);

    QLabel *Label2;
    QLabel *Label3;
    QLabel *Label4;
    QLabel *m_levelLine;
    Chart *picChart;
    std::array<QRadioButton *, 2> optChart{};
    SkinButton *BtnOk;

    QList<int> m_aSpeed;
    QStringList m_aSpeedTime;
    int m_nMaxSpeed = 0;
    QList<int> m_aWrongCount;
    QStringList m_aWrongChar;
    int m_nMaxWrong = 0;
    int m_nInputKind = 0;
};
