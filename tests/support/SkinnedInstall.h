#pragma once

#include "support/TestInstall.h"
#include "ui/skin/Fonts.h"

#include <QGuiApplication>
#include <QScreen>

/// An install folder with the pictures, sounds, fonts and lessons that the build has made, on the test's
/// screen.
class SkinnedInstall : public TestInstall
{
public:
    explicit SkinnedInstall(const QString &user = QString())
        : TestInstall(user)
    {
        const QString built = qEnvironmentVariable("QUORVEX_INSTALL");
        if (built.isEmpty())
            qFatal("QUORVEX_INSTALL does not name the built install folder");
        for (const char *folder : {"Bitmap", "Fonts", "Sound"})
            QFile::link(built + u'/' + QLatin1StringView(folder), Native(QLatin1StringView(folder)));
        Shared().ScreenRect = QGuiApplication::primaryScreen()->geometry();
        Public_Function::LoadFonts();
    }
};
