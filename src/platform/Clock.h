#pragma once

#include <QDate>

/// Where all times and dates of the program come from, so that a test can move them.
class Clock
{
public:
    virtual ~Clock() = default;
    /// Seconds with fractions since an arbitrary start; never goes back, whatever happens to the system time.
    virtual double Now() const = 0;
    /// The calendar day on which records of this moment are kept.
    virtual QDate Today() const = 0;
};

class SystemClock final : public Clock
{
public:
    double Now() const override;
    QDate Today() const override;
};
