#include "app/qt/sound/QtSound.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <algorithm>
#include <utility>

namespace veltrix {

namespace {

constexpr int supervisionInterval = 1000; // ms
constexpr int patienceAtExit = 700;       // ms

QtMessageHandler messagesOfOthers = nullptr;

/// What goes wrong with the sound is told in one line of the log. The library behind it tells the
/// same in many, some of them twenty times a second, and all from the threads of the sound.
void dropLibraryMessages(QtMsgType type, const QMessageLogContext& context, const QString& line) {
    const auto* application = QCoreApplication::instance();
    const bool ofSound =
        application != nullptr && QThread::currentThread() != application->thread();
    if (type == QtFatalMsg || !ofSound)
        messagesOfOthers(type, context, line);
}

} // namespace

std::int32_t QtAudioTap::DeviceCount() {
    return sound_.Inputs().Count();
}

std::string QtAudioTap::DeviceName(std::int32_t i) {
    return sound_.Inputs().Name(i);
}

bool QtAudioTap::DeviceValid(std::int32_t i) {
    return sound_.Inputs().Valid(i);
}

void QtAudioTap::Start() {
    sound_.Inputs().Want(index_);
    emit sound_.InputsWanted();
}

std::int32_t QtAudioTap::Level() {
    return sound_.Inputs().Level(index_);
}

void QtSoundPlayer::Play(const std::string& name) {
    sound_.Play(name);
}

QtSound::QtSound(std::filesystem::path applicationFolder, Log& log)
    : applicationFolder_(std::move(applicationFolder)), log_(log) {
    taps_.reserve(UCWaveIn::Inputs);
    for (std::int32_t i = 0; i < UCWaveIn::Inputs; ++i)
        taps_.emplace_back(*this);
    startWorker();
    connect(&supervision_, &QTimer::timeout, this, &QtSound::replaceHangingWorker);
    supervision_.start(supervisionInterval);
}

UCWaveIn::Captures QtSound::Captures() {
    UCWaveIn::Captures captures{};
    std::transform(taps_.begin(), taps_.end(), captures.begin(),
                   [](QtAudioTap& tap) { return &tap; });
    return captures;
}

bool QtSound::Close() {
    supervision_.stop();
    for (QThread* thread : threads_)
        thread->quit();
    const QDeadlineTimer deadline(patienceAtExit);
    const bool ended = std::all_of(threads_.begin(), threads_.end(),
                                   [&](QThread* thread) { return thread->wait(deadline); });
    if (!ended)
        return false;
    for (QThread* thread : std::exchange(threads_, {}))
        delete thread;
    return true;
}

void QtSound::Play(const std::string& name) {
    if (wish_->Set(name))
        emit SoundWished();
}

void QtSound::startWorker() {
    auto* thread = new QThread;
    threads_.push_back(thread);
    worker_ = new SoundWorker(inputs_, wish_, openings_, applicationFolder_);
    worker_->moveToThread(thread);
    connect(thread, &QThread::started, worker_, &SoundWorker::Begin);
    connect(thread, &QThread::finished, worker_, &QObject::deleteLater);
    connect(worker_, &SoundWorker::Done, thread, &QThread::quit);
    connect(this, &QtSound::InputsWanted, worker_, &SoundWorker::OpenInputs);
    connect(this, &QtSound::SoundWished, worker_, &SoundWorker::PlayWish);
    connect(worker_, &SoundWorker::Fault, this,
            [this](const QString& line) { log_.Write(line.toStdString()); });
    thread->start();
}

void QtSound::replaceHangingWorker() {
    const auto device = openings_->TakeHanging();
    if (!device)
        return;
    const auto input = static_cast<std::int32_t>(*device);
    if (*device == OpeningWatch::Output)
        log_.Write("sound: the loudspeaker does not open");
    else if (inputs_->SetFailed(input, true))
        log_.Write("sound: input " + inputs_->Name(input) + " does not open");
    worker_->Abandon();
    disconnect(worker_);
    startWorker();
}

std::unique_ptr<Sound> MakeSound(const std::filesystem::path& applicationFolder, Log& log) {
    if (messagesOfOthers == nullptr)
        messagesOfOthers = qInstallMessageHandler(dropLibraryMessages);
    return std::make_unique<QtSound>(applicationFolder, log);
}

} // namespace veltrix
