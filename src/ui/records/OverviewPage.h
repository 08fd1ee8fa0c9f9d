#pragma once

#include "ui/records/ManagePage.h"

#include <array>

class ElidedLabel;
class IUserRecord;

/// The user's English course in four lines.
class OverviewPage final : public ManagePage
{
    Q_OBJECT

public:
    OverviewPage(IUserRecord &store, QWidget *parent);

    void Refresh() override;

private:
    IUserRecord &m_store;
    std::array<ElidedLabel *, 4> m_lines{};
};
