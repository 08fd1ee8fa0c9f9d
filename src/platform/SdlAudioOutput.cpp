#include "platform/SdlAudioOutput.h"

#include <QDir>
#include <QLibrary>
#include <QStringList>
#include <algorithm>
#include <array>

#define SDL_MAIN_HANDLED
#include <SDL_audio.h>
#include <SDL_hints.h>

using namespace Qt::Literals::StringLiterals;

struct SdlFunctions
{
    decltype(&::SDL_SetHint) SetHint;
    decltype(&::SDL_AudioInit) AudioInit;
    decltype(&::SDL_AudioQuit) AudioQuit;
    decltype(&::SDL_OpenAudioDevice) OpenAudioDevice;
    decltype(&::SDL_CloseAudioDevice) CloseAudioDevice;
    decltype(&::SDL_PauseAudioDevice) PauseAudioDevice;
    decltype(&::SDL_GetAudioDeviceStatus) GetAudioDeviceStatus;
    decltype(&::SDL_RWFromConstMem) RWFromConstMem;
    decltype(&::SDL_LoadWAV_RW) LoadWAV_RW;
    decltype(&::SDL_FreeWAV) FreeWAV;
    decltype(&::SDL_BuildAudioCVT) BuildAudioCVT;
    decltype(&::SDL_ConvertAudio) ConvertAudio;
};

namespace {

constexpr int FramesAtOnce =
    512; // about 15 ms from a key to its sound; fewer begin to stutter on weak machines
constexpr int LowestRate = 1000;
constexpr int HighestRate = 384'000;
constexpr qint64 LongestSeconds = 60;

template <typename Function>
bool ResolveSdl(QLibrary &library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

void FillFromSource(void *source, Uint8 *bytes, int size)
{
    const std::span samples(reinterpret_cast<qint16 *>(bytes),
                            static_cast<std::size_t>(size) / sizeof(qint16));
    (*static_cast<AudioOutput::Source *>(source))(samples);
}

/// The drivers to try, best first; null is SDL's own choice.
std::vector<const char *> SdlDrivers()
{
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIsSet("SDL_AUDIODRIVER"))
        return {nullptr};
    std::vector<const char *> drivers{"pulseaudio", "pipewire"};
    // Without a sound card ALSA does nothing but write complaints on the terminal.
    if (!QDir(u"/dev/snd"_s).entryList({u"pcm*p"_s}, QDir::System).isEmpty())
        drivers.push_back("alsa");
    return drivers;
#else
    return {nullptr};
#endif
}

} // namespace

SdlAudioOutput::SdlAudioOutput() = default;

SdlAudioOutput::~SdlAudioOutput()
{
    Stop();
}

bool SdlAudioOutput::LoadLibrary()
{
    if (m_sdl || m_loadFailed)
        return m_sdl != nullptr;
#ifdef Q_OS_LINUX
    QLibrary library(u"SDL2-2.0"_s, 0);
#else
    QLibrary library(u"SDL2"_s);
#endif
    auto sdl = std::make_unique<SdlFunctions>();
    m_loadFailed = !(ResolveSdl(library, "SDL_SetHint", sdl->SetHint) &&
                     ResolveSdl(library, "SDL_AudioInit", sdl->AudioInit) &&
                     ResolveSdl(library, "SDL_AudioQuit", sdl->AudioQuit) &&
                     ResolveSdl(library, "SDL_OpenAudioDevice", sdl->OpenAudioDevice) &&
                     ResolveSdl(library, "SDL_CloseAudioDevice", sdl->CloseAudioDevice) &&
                     ResolveSdl(library, "SDL_PauseAudioDevice", sdl->PauseAudioDevice) &&
                     ResolveSdl(library, "SDL_GetAudioDeviceStatus", sdl->GetAudioDeviceStatus) &&
                     ResolveSdl(library, "SDL_RWFromConstMem", sdl->RWFromConstMem) &&
                     ResolveSdl(library, "SDL_LoadWAV_RW", sdl->LoadWAV_RW) &&
                     ResolveSdl(library, "SDL_FreeWAV", sdl->FreeWAV) &&
                     ResolveSdl(library, "SDL_BuildAudioCVT", sdl->BuildAudioCVT) &&
                     ResolveSdl(library, "SDL_ConvertAudio", sdl->ConvertAudio));
    if (m_loadFailed)
        return false;
    m_sdl = std::move(sdl);
    m_sdl->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    m_sdl->SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Quorvex");
    m_sdl->SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Typing sounds");
    return true;
}

bool SdlAudioOutput::Open(const Source &source)
{
    if (!LoadLibrary())
        return false;
    Close();
    m_source = source;
    if (m_started && OpenDevice())
        return true;
    // Not started yet, or the sound server of last time is gone: see what there is now.
    return std::ranges::any_of(SdlDrivers(), [this](const char *driver) { return StartAndOpen(driver); });
}

bool SdlAudioOutput::StartAndOpen(const char *driver)
{
    Stop();
    // Started by itself, not through SDL_Init: that would start SDL's events as well.
    m_started = m_sdl->AudioInit(driver) == 0;
    return m_started && OpenDevice();
}

bool SdlAudioOutput::OpenDevice()
{
    SDL_AudioSpec wanted{};
    wanted.freq = SampleRate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 1;
    wanted.samples = FramesAtOnce;
    wanted.callback = FillFromSource;
    wanted.userdata = &m_source;
    SDL_AudioSpec obtained{};
    m_device = m_sdl->OpenAudioDevice(nullptr, 0, &wanted, &obtained, 0);
    if (m_device == 0)
        return false;
    m_sdl->PauseAudioDevice(m_device, 0);
    return true;
}

void SdlAudioOutput::Close()
{
    if (m_device != 0)
        m_sdl->CloseAudioDevice(m_device);
    m_device = 0;
}

void SdlAudioOutput::Stop()
{
    Close();
    if (m_started)
        m_sdl->AudioQuit();
    m_started = false;
}

bool SdlAudioOutput::IsLost()
{
    return m_device != 0 && m_sdl->GetAudioDeviceStatus(m_device) == SDL_AUDIO_STOPPED;
}

AudioOutput::Samples SdlAudioOutput::Decode(const QByteArray &wave)
{
    if (!LoadLibrary())
        return {};
    SDL_RWops *memory = m_sdl->RWFromConstMem(wave.constData(), static_cast<int>(wave.size()));
    SDL_AudioSpec spec{};
    Uint8 *bytes = nullptr;
    Uint32 size = 0;
    if (memory == nullptr || m_sdl->LoadWAV_RW(memory, 1, &spec, &bytes, &size) == nullptr)
        return {};
    const std::unique_ptr<Uint8, decltype(m_sdl->FreeWAV)> freed(bytes, m_sdl->FreeWAV);
    if (spec.freq < LowestRate || spec.freq > HighestRate || spec.channels == 0)
        return {};

    const qint64 frameSize = qint64{SDL_AUDIO_BITSIZE(spec.format)} / 8 * spec.channels;
    const qint64 frames = std::min(size / frameSize, LongestSeconds * spec.freq);
    SDL_AudioCVT conversion{};
    if (m_sdl->BuildAudioCVT(&conversion, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 1,
                             SampleRate) < 0)
        return {};
    conversion.len = static_cast<int>(frames * frameSize);
    std::vector<Uint8> buffer(static_cast<std::size_t>(conversion.len) *
                              static_cast<std::size_t>(conversion.len_mult));
    std::copy_n(bytes, conversion.len, buffer.begin());
    conversion.buf = buffer.data();
    conversion.len_cvt = conversion.len;
    if (conversion.needed && m_sdl->ConvertAudio(&conversion) < 0)
        return {};
    Samples samples(static_cast<std::size_t>(conversion.len_cvt) / sizeof(qint16));
    std::copy_n(buffer.data(), samples.size() * sizeof(qint16), reinterpret_cast<Uint8 *>(samples.data()));
    return samples;
}
