#pragma once

#include "core/engine/KTest.h"
#include "ui/speedtest/TestWindow.h"

class DlgTestSetting;

/// The speed test: a text from the screen or from paper is copied line by line.
class frmTest final : public TestWindow
{
    Q_OBJECT

public:
    /// Shows the shared `TestSource`.
    frmTest(Navigator &navigator, QWidget *owner);

protected:
    void Load() override;
    TestLayout::DisplayMode Mode() const override;
    void FillRow(int row, int line) override;
    bool ShowTyped(int row) override;
    void ShowTakenBack(int row) override;
    bool IsLineComplete() const override;
    void ShowFigures() override;
    bool IsOverTime() const override;
    void OnTab(Source source) override;
    void SelectLesson() override;
    void ChangeSettings() override;

private:
    frmTest(Navigator &navigator, QWidget *owner, std::unique_ptr<KTest> test);

    void LoadTest();
    /// False when the test was loaded anew, or the window closed meanwhile.
    bool TakeTimeLimit(const DlgTestSetting &dialog);

    KTest &m_test;
};
