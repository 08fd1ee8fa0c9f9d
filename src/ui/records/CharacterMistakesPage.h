#pragma once

#include "ui/records/MistakesPage.h"

class ElidedLabel;

/// The Chinese characters that were mistyped most often.
class CharacterMistakesPage final : public MistakesPage
{
    Q_OBJECT

public:
    CharacterMistakesPage(IUserRecord &store, QWidget *parent);

protected:
    void ShowMistakes(const std::vector<MistakeRecord> &frequent, int amount) override;
    bool MayDelete() override { return true; }

private:
    ElidedLabel *m_amount;
    SkinButton *m_selectAll;
    SkinButton *m_selectNone;
};
