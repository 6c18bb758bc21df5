#pragma once

#include "board/Log.h"
#include "instruments/UCWaveIn.h"
#include "sim/Tick.h"

#include <filesystem>
#include <memory>

namespace veltrix {

/// The computer's sound; this is all that the rest of the desktop knows of it. Where the program is
/// built without sound, on Windows for one, nothing is heard or listened to.
class Sound {
public:
    virtual ~Sound() = default;

    /// Five captures, none of which listens yet.
    [[nodiscard]] virtual UCWaveIn::Captures Captures() = 0;

    [[nodiscard]] virtual SoundPlayer& Player() = 0;

    /// Ends all sound; takes less than a second. False when a part of it does not come back from
    /// the sound server: that part runs on and must not find its world taken down, so the program
    /// has to be left with std::_Exit.
    [[nodiscard]] virtual bool Close() = 0;
};

/// The sound of this platform. `applicationFolder` holds the wave files; `log` is written to from
/// the thread of the caller only and must outlive the sound.
[[nodiscard]] std::unique_ptr<Sound> MakeSound(const std::filesystem::path& applicationFolder,
                                               Log& log);

} // namespace veltrix
