#pragma once

#include "ui/records/MistakesPage.h"

class Chart;

/// The keys that were mistyped most often, as bars.
class KeyMistakesPage final : public MistakesPage
{
    Q_OBJECT

public:
    KeyMistakesPage(IUserRecord &store, QWidget *parent);

protected:
    void ShowMistakes(const std::vector<MistakeRecord> &frequent, int amount) override;
    bool MayDelete() override { return ConfirmDeletion(); }

private:
    Chart *m_chart;
};
