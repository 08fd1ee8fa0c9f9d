#include "platform/Clock.h"

#include <chrono>

double SystemClock::Now() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

QDate SystemClock::Today() const
{
    return QDate::currentDate();
}
