#pragma once

#include <QStringList>

/// What the menu is painted from, in the order in which it is asked for.
inline QStringList MenuPictures()
{
    return {QStringLiteral("MAIN_BG"),          QStringLiteral("MAIN_BACK"),
            QStringLiteral("BTN_YINGWEN"),      QStringLiteral("BTN_CESHI"),
            QStringLiteral("BTN_JIAOCHENG"),    QStringLiteral("BTN_YOUXI_MISSILE"),
            QStringLiteral("BTN_YOUXI_RABBIT"), QStringLiteral("BTN_GERENJILU"),
            QStringLiteral("BTN_TUICHUDENGLU"), QStringLiteral("BTN_HELP"),
            QStringLiteral("BTN_MIN"),          QStringLiteral("BTN_CLOSE")};
}
