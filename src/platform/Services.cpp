#include "platform/Services.h"

#include "platform/Clock.h"
#include "platform/InputMethod.h"
#include "platform/ProgramLauncher.h"
#include "platform/SoundPlayer.h"

Services &PlatformServices()
{
    static SystemClock clock;
    static SilentPlayer sound;
    static SystemProgramLauncher launcher;
    static NoInputMethod inputMethod;
    static Services services{&clock, &sound, &launcher, &inputMethod, std::mt19937{}};
    return services;
}
