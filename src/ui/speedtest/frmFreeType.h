#pragma once

#include "ui/speedtest/TestWindow.h"

/// Free typing from whatever lies beside the keyboard: nothing is compared, time and speed are measured.
class frmFreeType final : public TestWindow
{
    Q_OBJECT

public:
    frmFreeType(Navigator &navigator, QWidget *owner);

protected:
    void Load() override;
    TestLayout::DisplayMode Mode() const override { return TestLayout::DisplayMode::TypedAlone; }
    void FillRow(int row, int line) override;
    bool ShowTyped(int row) override;
    void ShowTakenBack(int row) override;
    bool IsLineComplete() const override;
    void OnTab(Source source) override;
    void SelectLesson() override;
    void ChangeSettings() override;
    void paintEvent(QPaintEvent *event) override;
};
