#pragma once

#include <QRect>
#include <QString>
#include <array>

/// The values that the whole program shares. There is one instance, `Shared()`.
struct Public_Define
{
    QString InstallDir;      ///< the program folder, product form, always ending in one separator
    QString CurrentUserName; ///< the user who is logged in, empty before the first login
    QString HelpFile;        ///< set at start-up, opened by F1
    QRect ScreenRect; ///< left 0, top 0, width() - 1 and height() as LayoutWidth and LayoutHeight below
    std::array<qint16, 8> FontSizeTable{24, 20, 20, 16, 32, 24, 12, 10}; ///< points at 96 dots per inch

    int EnSound = 1; ///< English typing: 0 no sound, 1 key sounds, 2 music keyboard
    int ChSound = 0; ///< Chinese typing: 1 key sounds on, 0 off

    int TestSource = 0;                          ///< 0 screen text, 1 printed text, 2 listening material
    std::array<int, 3> TestDisplayMode{0, 3, 0}; ///< `InComp`, `OutComp`, `AuditionComp`, by TestSource
    bool ShowOrg = true;
    int Frequency = 0;
    int OverType = 0;
    qint16 LimitTime = 10; ///< minutes
    int NewLine = 0;
    std::array<QString, 3> TestFile; ///< full paths, by TestSource

    /// The usable width and height that windows are laid out in: the screen's right edge (its width less one)
    /// less its left edge, and its bottom (its height) less its top.
    int LayoutWidth() const { return ScreenRect.width() - 1; }
    int LayoutHeight() const { return ScreenRect.height(); }
};

Public_Define &Shared();
