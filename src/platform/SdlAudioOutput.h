#pragma once

#include "platform/AudioOutput.h"

#include <memory>

struct SdlFunctions;

/// Sound through SDL2. The library is loaded when the device is first opened: it brings twenty others along,
/// which would make every start of the program some milliseconds slower, and a machine without it is merely
/// silent. Nothing but SDL's audio is started, so it neither takes over signals nor touches the display.
class SdlAudioOutput final : public AudioOutput
{
public:
    SdlAudioOutput();
    ~SdlAudioOutput() override;
    bool Open(const Source &source) override;
    void Close() override;
    bool IsLost() override;
    /// Refuses sample rates below 1 kHz or above 384 kHz, and cuts after a minute.
    Samples Decode(const QByteArray &wave) override;

private:
    bool LoadLibrary();
    bool OpenDevice();
    bool StartAndOpen(const char *driver);
    void Stop();

    std::unique_ptr<SdlFunctions> m_sdl; ///< null until loaded
    bool m_loadFailed = false;
    bool m_started = false;
    quint32 m_device = 0; ///< 0: closed
    Source m_source;
};
