#pragma once

#include <QString>

/// The shortest decimal text that means this float and no other, never with an exponent: 45.5 is "45.5".
QString ShortestText(float number);
