#pragma once

#include "app/qt/sound/LoopPlayer.h"
#include "app/qt/sound/OpeningWatch.h"
#include "app/qt/sound/SoundCapture.h"
#include "app/qt/sound/SoundInputs.h"

#include <QObject>
#include <QTimer>

#include <array>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace veltrix {

/// Which file is to be played; a newer wish replaces one that was not yet taken.
class SoundWish {
public:
    /// True when the wish before was taken, so that nobody is on the way to take this one.
    [[nodiscard]] bool Set(const std::string& name);

    /// The latest wish, also when it was taken before; empty when there was none.
    [[nodiscard]] std::string Take();

private:
    std::mutex mutex_;
    std::string name_;
    bool taken_ = true;
};

/// All audio objects of the program. They live in one thread, because they share a connection to
/// the sound server that is taken down and made anew in the thread that made it; and in no thread
/// that anybody waits for, because the server answers when it likes.
class SoundWorker : public QObject {
    Q_OBJECT

public:
    SoundWorker(std::shared_ptr<SoundInputs> inputs, std::shared_ptr<SoundWish> wish,
                std::shared_ptr<OpeningWatch> openings, std::filesystem::path applicationFolder);

    /// Begins to work, in the thread that it was moved to.
    void Begin();

    /// Opens what is wanted by now.
    void OpenInputs();

    /// Plays what is wished for by now.
    void PlayWish();

    /// Another worker has taken over. From any thread; if this one ever comes back from the sound
    /// server, it leaves everything alone and ends.
    void Abandon() noexcept { abandoned_ = true; }

signals:
    void Fault(const QString& line);

    /// An abandoned worker has come back, and may end.
    void Done();

private:
    void watch();
    void list();
    void listen(std::int32_t i);
    void giveUp(std::int32_t i);
    void tellFailed(std::int32_t i);
    void open(std::size_t device, const std::function<void()>& open);
    [[nodiscard]] std::unique_ptr<SoundCapture>& capture(std::int32_t i);

    std::shared_ptr<SoundInputs> inputs_;
    std::shared_ptr<SoundWish> wish_;
    std::shared_ptr<OpeningWatch> openings_;
    LoopPlayer player_;
    std::string playing_;
    std::array<std::unique_ptr<SoundCapture>, UCWaveIn::Inputs> captures_;
    QTimer watch_;
    int watches_ = 0;
    std::atomic<bool> abandoned_ = false;
};

} // namespace veltrix
