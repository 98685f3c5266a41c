#include "audio/WaveRecorder.h"

#include <QEventLoop>
#include <algorithm>
#include <iostream>
#include <new>
#include <utility>

#include "audio/CrashMarker.h"
#include "base/Assert.h"
#include "base/ByteOrder.h"
#include "store/Prompt.h"
#include "store/TextFormat.h"

// The engine hears the device itself when no window was given: it takes each buffer back and counts the take as
// finished once a stop is requested, but neither queues new buffers nor writes the WAV file.
class WaveRecorder::OwnEvents : public WaveInEvents {
public:
    explicit OwnEvents(WaveRecorder& recorder) : m_recorder(recorder) {}
    void waveInOpened() override {}
    void waveInData(WaveHeader& header) override {
        if (header.dwFlags & WHDR_DONE) m_recorder.HandleBuffer(header);
        if (m_recorder.m_stopRequested) m_recorder.m_finishState = kFinished;
    }
    void waveInClosed() override { m_recorder.OnClosed(); }
    void waveInFailed(int code) override { m_recorder.OnFailed(code); }

private:
    WaveRecorder& m_recorder;
};

namespace {

// Reads up to `bytes` from the scratch file's position as 16-bit values; a last odd byte is dropped, as the WAV
// writer keeps whole values only. Gives the values and the bytes read.
std::pair<std::vector<std::int16_t>, std::uint32_t> readSamples(TempFile& file, std::uint32_t bytes) {
    std::vector<std::int16_t> samples;
    samples.reserve(bytes / 2);
    std::vector<std::uint8_t> block(64 * 1024);
    std::uint32_t done = 0;
    while (done < bytes) {
        const std::size_t want = std::min<std::size_t>(block.size(), bytes - done);
        const std::size_t got = file.read(block.data(), want);
        const std::size_t first = samples.size();
        samples.resize(first + got / 2);
        samplesFromLE({block.data(), got}, samples.data() + first);
        done += static_cast<std::uint32_t>(got);
        if (got < want) break;
    }
    return {std::move(samples), done};
}

}  // namespace

WaveRecorder::WaveRecorder(WaveInDevice& device, Prompt& prompt, std::filesystem::path dataRoot)
    : m_device(device),
      m_prompt(prompt),
      m_dataRoot(std::move(dataRoot)),
      m_ownEvents(std::make_unique<OwnEvents>(*this)),
      m_scratchPath(ScratchRecordingPath(m_dataRoot)) {
    SetFormat(kDefaultRecordFormat);
}

WaveRecorder::~WaveRecorder() {
    if (!m_deviceOpen) return;
    resetAndFreeSlots();
    m_device.close();
}

void WaveRecorder::SetFormat(int index) {
    SONALYS_ASSERT(0 <= index && index <= 9);
    m_formatIndex = index;
    m_writer.SetRecordFormat(index);
}

void WaveRecorder::SetUpdateRateBytes(int bytes) {
    SONALYS_ASSERT(bytes >= 2);
    m_updateRateBytes = bytes;
}

void WaveRecorder::ChangeUpdateRate(int bytes) {
    SetUpdateRateBytes(bytes);
    // Every queued buffer comes back at once; OnData replaces each at the new size and starts the device again.
    if (m_deviceOpen && !m_stopRequested) m_device.reset();
}

void WaveRecorder::SetOutputPath(const std::filesystem::path& path) {
    m_outputPath = path;
    m_outputNamed = true;
}

void WaveRecorder::SetScratchPath(const std::filesystem::path& path) {
    m_scratchPath = path;
    m_scratchGiven = true;
}

// Creates the scratch file afresh: the caller's own, or the first of the data root's that no other capture holds.
bool WaveRecorder::openScratch() {
    if (!m_scratchGiven) {
        if (!m_scratchClaim.claim(m_dataRoot)) return false;
        m_scratchPath = m_scratchClaim.path();
    }
    if (m_temporaryFile.open(m_scratchPath, TempFile::kWriteMode)) return true;
    m_scratchClaim.release();
    return false;
}

int WaveRecorder::Start(WaveInEvents* window) {
    m_finishState = 1;
    m_stopRequested = false;
    m_capturedBytes = 0;
    m_writeFailed = false;
    m_replacedSinceStart = 0;
    if (!openScratch()) {
        m_stopRequested = true;
        m_prompt.showOk(kErrorWritingFile);
        return 0;
    }
    const int opened = m_device.open(format(), window ? *window : *m_ownEvents);
    if (opened != MMSYSERR_NOERROR) {
        // The refused format goes to the error stream for whoever looks into it; the user sees the device's sentence.
        const WaveFormat& f = format();
        std::cerr << formatText(kRecordOpenFailed.data(), f.cbSize, static_cast<int>(f.nAvgBytesPerSec), f.nBlockAlign,
                                f.nChannels, static_cast<int>(f.nSamplesPerSec), f.wBitsPerSample, f.wFormatTag)
                  << "\n";
        m_stopRequested = true;
        m_temporaryFile.close();
        m_scratchClaim.release();
        m_prompt.showOk(waveErrorText(opened, m_prompt));
        return 0;
    }
    m_deviceOpen = true;
    if (!fillSlots()) {
        m_prompt.showOk(kErrorLoadingHeader);
        abandonStart();
        return 0;
    }
    // Only these two answers mean the device did not start; any other is taken as started.
    const int started = m_device.start();
    if (started == MMSYSERR_INVALHANDLE || started == MMSYSERR_HANDLEBUSY) {
        m_prompt.showOk(kCannotStartRecording);
        abandonStart();
        return 0;
    }
    m_closed = false;
    m_startTick = std::chrono::steady_clock::now();
    markCrash(kCaptureRunning);
    return 1;
}

// Prepares a buffer in every slot, then queues them all in slot order. A device that refuses to prepare a buffer
// has its own sentence shown first.
bool WaveRecorder::fillSlots() {
    for (int i = 0; i < kSlotCount; ++i) {
        if (AddBuffer() >= 0) continue;
        if (m_lastResult != MMSYSERR_NOERROR) m_prompt.showOk(waveErrorText(m_lastResult, m_prompt));
        return false;
    }
    for (Slot& slot : m_slots) {
        m_lastResult = m_device.addBuffer(*slot.header);
        if (m_lastResult == MMSYSERR_NOERROR) continue;
        m_prompt.showOk(waveErrorText(m_lastResult, m_prompt));
        return false;
    }
    return true;
}

// Stops the device taking buffers and hands every buffer it still holds back to us.
void WaveRecorder::resetAndFreeSlots() {
    m_stopRequested = true;
    m_device.reset();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        if (!m_slots[slot].header) continue;
        m_device.unprepareHeader(*m_slots[slot].header);
        freeSlot(slot);
    }
}

void WaveRecorder::abandonStart() {
    resetAndFreeSlots();
    closeDevice();
    m_temporaryFile.close();
    m_scratchClaim.release();
}

void WaveRecorder::Stop() {
    m_stopRequested = true;
    if (!m_deviceOpen) return;
    if (m_device.reset() != MMSYSERR_NOERROR) m_prompt.showOk(kStopRecordingError1);
    // With no buffer queued nothing will come back to finish the take, so it is finished here.
    if (queuedSlots() == 0) {
        if (m_finishState != kFinished) finishFile();
        closeDevice();
    }
}

int WaveRecorder::AddBuffer() {
    m_lastResult = MMSYSERR_NOERROR;
    const auto free = std::find_if(m_slots.begin(), m_slots.end(), [](const Slot& s) { return !s.header; });
    if (free == m_slots.end()) return -1;
    // Each buffer is allocated anew rather than reused.
    const int bytes = bufferBytes();
    std::unique_ptr<WaveHeader> header(new (std::nothrow) WaveHeader{});
    std::unique_ptr<std::uint8_t[]> buffer(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(bytes)]);
    if (!header || !buffer) {
        m_prompt.showOk(kCaptureNoFreeMemory);
        return -1;
    }
    header->lpData = buffer.get();
    header->dwBufferLength = static_cast<std::uint32_t>(bytes);
    m_lastResult = m_device.prepareHeader(*header);
    if (m_lastResult != MMSYSERR_NOERROR) return -1;
    free->header = std::move(header);
    free->buffer = std::move(buffer);
    return static_cast<int>(free - m_slots.begin());
}

int WaveRecorder::QueueBuffer() {
    const int slot = AddBuffer();
    if (slot < 0) {
        if (m_lastResult != MMSYSERR_NOERROR) m_prompt.showOk(kErrorLoadingHeader);
        return -1;
    }
    m_lastResult = m_device.addBuffer(*m_slots[slot].header);
    if (m_lastResult != MMSYSERR_NOERROR) {
        m_device.unprepareHeader(*m_slots[slot].header);
        freeSlot(slot);
        return -1;
    }
    return slot;
}

void WaveRecorder::HandleBuffer(WaveHeader& header) {
    if (m_device.unprepareHeader(header) != MMSYSERR_NOERROR) {
        m_prompt.showOk(kErrorFreeingHeader);
        return;
    }
    if (header.dwBytesRecorded > 0 && header.dwUser == 0) appendToScratch(header);
    const auto held =
        std::find_if(m_slots.begin(), m_slots.end(), [&](const Slot& s) { return s.header.get() == &header; });
    if (held == m_slots.end()) {
        m_prompt.showOk(kErrorFreeingMemory);
        return;
    }
    freeSlot(static_cast<int>(held - m_slots.begin()));
    if (m_stopRequested && queuedSlots() == 0) closeDevice();
}

void WaveRecorder::appendToScratch(const WaveHeader& header) {
    // After a failed write the file keeps what it had, with no hole in it.
    if (m_writeFailed) return;
    const int written = m_temporaryFile.write(header.lpData, header.dwBytesRecorded);
    if (written == 1) {
        m_capturedBytes += header.dwBytesRecorded;
    } else if (written == 0) {
        m_writeFailed = true;
        Stop();
        m_prompt.showOk(kErrorWritingFile);
    }
    // -1: the take was already finished and closed its file; a buffer back that late is lost.
}

void WaveRecorder::OnData(WaveHeader& header, bool recordPaused, bool drain) {
    if (!(header.dwFlags & WHDR_DONE)) return;
    header.dwUser = recordPaused ? 1 : 0;
    const bool empty = header.dwBytesRecorded == 0;
    HandleBuffer(header);
    if (!m_stopRequested && !drain) {
        if (QueueBuffer() >= 0) ++m_replacedSinceStart;
        // Empty buffers come back after a reset: once they are replaced the device is started again, which is how a
        // change of Update Rate resumes capture at once.
        if (empty && m_replacedSinceStart != 0) {
            m_device.start();
            m_replacedSinceStart = 0;
        }
    }
    if (m_stopRequested && m_finishState != kFinished) finishFile();
}

void WaveRecorder::finishFile() {
    if (m_temporaryFile.open(scratchPath(), TempFile::kReadMode)) {
        m_temporaryFile.rewind();
        try {
            auto [samples, bytes] = readSamples(m_temporaryFile, m_capturedBytes);
            m_temporaryFile.close();
            if (m_outputNamed) m_writer.WaveWrite(m_outputPath, bytes, samples.data(), m_prompt);
        } catch (const std::bad_alloc&) {
            m_temporaryFile.close();
            m_prompt.showOk(kCaptureNoFreeMemory);
        }
    }
    m_finishState = kFinished;
    m_scratchClaim.release();
}

std::vector<std::int16_t> WaveRecorder::CapturedSamples() {
    m_temporaryFile.rewind();
    std::vector<std::int16_t> samples = readSamples(m_temporaryFile, m_capturedBytes).first;
    m_temporaryFile.size();  // back to the end, where the next buffer goes
    return samples;
}

void WaveRecorder::closeDevice() {
    if (m_device.close() != MMSYSERR_NOERROR) {
        m_prompt.showOk(kStopRecordingError2);
        return;
    }
    m_deviceOpen = false;
}

void WaveRecorder::OnClosed() {
    m_closed = true;
    markCrash(kCaptureClosed);
    if (m_waitLoop) m_waitLoop->quit();
}

void WaveRecorder::OnFailed(int code) {
    if (!m_deviceOpen || m_stopRequested) return;
    m_prompt.showOk(waveErrorText(code, m_prompt));
    Stop();
}

void WaveRecorder::WaitClosed() {
    if (m_closed) return;
    // A quit of the application also ends every local loop, and a quit that came before ends this one at once.
    QEventLoop loop;
    QEventLoop* outer = std::exchange(m_waitLoop, &loop);
    loop.exec();
    m_waitLoop = outer;
    if (m_closed && m_waitLoop) m_waitLoop->quit();
}

void WaveRecorder::freeSlot(int slot) { m_slots[slot] = Slot{}; }

int WaveRecorder::queuedSlots() const noexcept {
    return static_cast<int>(
        std::count_if(m_slots.begin(), m_slots.end(), [](const Slot& s) { return s.header != nullptr; }));
}

void WaveRecorder::markCrash(std::int32_t state) {
    if (m_crashMarkerEnabled) writeCrashMarker(m_dataRoot, CrashMarker{state, m_updateRateIndex});
}
