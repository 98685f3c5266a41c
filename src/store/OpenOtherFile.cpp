#include "OpenOtherFile.h"

#include <new>

#include "Prompt.h"
#include "TextFormat.h"

std::optional<std::string_view> CheckOtherFileFormat(const WaveFormat& format) {
    const std::uint32_t rate = format.nSamplesPerSec;
    if (rate != 44100 && rate != 22050 && rate != 11025) return kFileRateMustBe;
    if (format.wBitsPerSample != 16) return kFileMustBe16Bits;
    return std::nullopt;
}

namespace {

OtherFileOpening refuse(LoadedRecording& recording, std::string_view message, Prompt& prompt) {
    prompt.showOk(message);
    recording.freeSamples();
    return {OtherFileResult::Refused, {}};
}

}  // namespace

OtherFileOpening OpenOtherFile(LoadedRecording& recording, const std::filesystem::path& path,
                               const StereoChooser& chooseStereo, Prompt& prompt) {
    if (!recording.LoadSamples(path)) return {OtherFileResult::Unreadable, {}};
    WaveFormat format = *recording.format();
    if (const auto message = CheckOtherFileFormat(format)) return refuse(recording, *message, prompt);
    if (format.nChannels == 2) {
        const std::optional<StereoChoice> choice = chooseStereo();
        if (!choice) return refuse(recording, kFileCannotBeOpened, prompt);
        try {
            std::vector<std::int16_t> mono = foldToMono(recording.samples(), *choice);
            foldFormatToMono(format);
            recording.replace(std::move(mono), std::move(format));
        } catch (const std::bad_alloc&) {
            recording.freeSamples();  // no room for the folded copy: as if the file could not be read
            return {OtherFileResult::Unreadable, {}};
        }
        recording.OpenedStereoAsMono = true;
    } else {
        recording.OpenedStereoAsMono = false;
    }
    recording.RecordingNumber = kOutsideRecordingNumber;
    recording.RecordingPath = path;
    recording.Modified = false;
    // The title names the file alone, as the file line does: its folders are no business of the window's title.
    const std::string name = path.filename().string();
    return {OtherFileResult::Opened, formatText(prompt.inLanguage(kOtherFileTitle).c_str(), name.c_str())};
}
