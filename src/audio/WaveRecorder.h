// The capture engine: records a new take from the default sound input into the scratch file `grav.tmp`, one small
// buffer at a time, and turns the scratch file into the take's WAV file when the capture stops. It knows no window:
// the device's events go to whoever started the capture (the view), which draws what it must and hands each buffer
// back through OnData; without such a receiver the engine hears the device itself.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include <QtGlobal>

#include "audio/ScratchFileClaim.h"
#include "audio/TempFile.h"
#include "audio/WaveDevice.h"
#include "store/RecordingFiles.h"
#include "store/WaveFile.h"

class QEventLoop;
struct Prompt;

// Built when the device refuses to open; the device's own sentence is what the user sees.
inline constexpr std::string_view kRecordOpenFailed =
    "Erro Gravação\nwfe.cbSize = %d\nwfe.nAvgBytesPerSec = %d\nwfe.nBlockAlign %d\nwfe.nChannels %d\n"
    "wfe.nSamplesPerSec %d\nwfe.wBitsPerSample %d\nwfe.wFormatTag %d";
inline constexpr std::string_view kCaptureNoFreeMemory =
    QT_TRANSLATE_NOOP("Sonalys", "There is no free memory available!");
inline constexpr std::string_view kErrorLoadingHeader = QT_TRANSLATE_NOOP("Sonalys", "Error Loading Header");
inline constexpr std::string_view kCannotStartRecording =
    QT_TRANSLATE_NOOP("Sonalys", "It was not possible to start recording");
inline constexpr std::string_view kErrorWritingFile =
    QT_TRANSLATE_NOOP("Sonalys", "Error writing to file\nVerify if there is free space!");
inline constexpr std::string_view kErrorFreeingMemory = QT_TRANSLATE_NOOP("Sonalys", "Error freeing memory!");
inline constexpr std::string_view kStopRecordingError1 =
    QT_TRANSLATE_NOOP("Sonalys", "Error stop recording - code: 001");
inline constexpr std::string_view kStopRecordingError2 =
    QT_TRANSLATE_NOOP("Sonalys", "Error stop recording - code: 002");

// The record-format index the program starts with: 11025 Hz, 16 bits, one channel.
inline constexpr int kDefaultRecordFormat = 3;
// Capture buffer size in bytes until the Update Rate combo box first applies.
inline constexpr int kDefaultUpdateRateBytes = 2048;

class WaveRecorder {
public:
    static constexpr int kSlotCount = 100;  // buffers always queued: small and many, so the display follows the voice
    static constexpr int kFinished = -1;    // finish state once the WAV file has been written

    // `dataRoot` is the folder that holds the scratch file and the crash marker.
    WaveRecorder(WaveInDevice& device, Prompt& prompt, std::filesystem::path dataRoot);
    ~WaveRecorder();
    WaveRecorder(const WaveRecorder&) = delete;
    WaveRecorder& operator=(const WaveRecorder&) = delete;

    // Settings, read at the next buffer or the next start.
    void SetFormat(int index);  // record-format index 0..9
    void SetUpdateRateBytes(int bytes);
    void ChangeUpdateRate(int bytes);  // as SetUpdateRateBytes, and a running capture goes on at the new size
    void SetUpdateRateIndex(int index) { m_updateRateIndex = index; }  // kept in the crash marker
    void SetCrashMarkerEnabled(bool enabled) { m_crashMarkerEnabled = enabled; }
    void SetOutputPath(const std::filesystem::path& path);
    // A scratch file of the caller's own, used in place of the data root's; the caller makes its name unique.
    void SetScratchPath(const std::filesystem::path& path);

    // Creates the scratch file, opens the device with `window` hearing its events (or the engine itself when null),
    // and queues every buffer. 1 when capture runs, 0 after telling the user why not.
    int Start(WaveInEvents* window);
    void Stop();        // ends the capture: every buffer comes back, the file is finished, the device closes
    int AddBuffer();    // a new prepared buffer in the first free slot: the slot, or -1
    int QueueBuffer();  // AddBuffer and queue it on the device: the slot, or -1
    void HandleBuffer(WaveHeader& header);  // takes a buffer back: append it to the scratch file, free its slot
    void WaitClosed();                      // runs the event loop until the device has closed, or the application quits

    // The engine's share of the device's events, for the window that hears them.
    // OnData marks the buffer as thrown away while `recordPaused`, takes it back and, unless `drain` or a stop,
    // queues a new one; the first buffer back after a stop finishes the WAV file.
    void OnOpened() {}
    void OnData(WaveHeader& header, bool recordPaused, bool drain);
    void OnClosed();
    void OnFailed(int code);  // the device stopped working: tell the user and stop as Stop() does

    // The samples captured so far, read back from the scratch file; later buffers are still appended.
    std::vector<std::int16_t> CapturedSamples();

    bool deviceOpen() const noexcept { return m_deviceOpen; }
    bool stopRequested() const noexcept { return m_stopRequested; }
    std::uint32_t capturedBytes() const noexcept { return m_capturedBytes; }
    bool closed() const noexcept { return m_closed; }
    const WaveFormat& format() const noexcept { return m_writer.format; }
    int formatIndex() const noexcept { return m_formatIndex; }
    int finishState() const noexcept { return m_finishState; }
    bool outputNamed() const noexcept { return m_outputNamed; }
    const std::filesystem::path& outputPath() const noexcept { return m_outputPath; }
    std::chrono::steady_clock::time_point startTick() const noexcept { return m_startTick; }
    int updateRateBytes() const noexcept { return m_updateRateBytes; }
    int bufferBytes() const noexcept { return m_updateRateBytes & ~1; }  // an odd size loses its last byte
    int queuedSlots() const noexcept;
    const std::filesystem::path& scratchPath() const noexcept { return m_scratchPath; }  // of the last capture

private:
    class OwnEvents;
    struct Slot {
        std::unique_ptr<WaveHeader> header;
        std::unique_ptr<std::uint8_t[]> buffer;
    };

    bool openScratch();
    bool fillSlots();
    void abandonStart();
    void resetAndFreeSlots();
    void freeSlot(int slot);
    void closeDevice();
    void appendToScratch(const WaveHeader& header);
    void finishFile();
    void markCrash(std::int32_t state);

    WaveInDevice& m_device;
    Prompt& m_prompt;
    std::filesystem::path m_dataRoot;
    std::unique_ptr<OwnEvents> m_ownEvents;

    bool m_deviceOpen = false;
    std::array<Slot, kSlotCount> m_slots;
    bool m_stopRequested = false;
    std::uint32_t m_capturedBytes = 0;  // bytes appended to the scratch file
    bool m_closed = true;
    WaveWriter m_writer;  // the record format, and the writer of the finished file
    int m_formatIndex = kDefaultRecordFormat;
    int m_finishState = 0;  // 1 from Start until the WAV file is written, then kFinished
    bool m_outputNamed = false;
    std::filesystem::path m_outputPath;
    std::chrono::steady_clock::time_point m_startTick;
    TempFile m_temporaryFile;
    std::filesystem::path m_scratchPath;
    bool m_scratchGiven = false;      // the caller chose the scratch file
    ScratchFileClaim m_scratchClaim;  // held from a start until the take is written

    int m_updateRateBytes = kDefaultUpdateRateBytes;
    int m_updateRateIndex = 3;
    bool m_crashMarkerEnabled = true;
    int m_lastResult = MMSYSERR_NOERROR;  // the device's answer to the last prepare or queue
    int m_replacedSinceStart = 0;         // buffers queued since the device was last told to start
    bool m_writeFailed = false;
    QEventLoop* m_waitLoop = nullptr;
};
