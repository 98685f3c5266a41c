// sonalys-analyze spectrogram: the spectrogram picture of a recording, as the spectrogram page paints it, written
// as a PNG file, with the F0 and formant dots over it when asked, drawn by the same code as on the screen.
#include <algorithm>
#include <iostream>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "Args.h"
#include "SampleRange.h"
#include "StreamPrompt.h"
#include "WaveInput.h"
#include "analysis/Palette.h"
#include "analysis/Spectrogram.h"

#ifdef SONALYS_WITH_QT
#include <QImage>
#include <QPainter>
#include <QString>

#include "panels/CurveOverlays.h"
#endif

namespace {

constexpr std::string_view kUsage =
    "usage: sonalys-analyze spectrogram FILE.wav --out PICTURE.png [--width 671] [--height 300]\n"
    "       [--band 10|40|80|150|300|400] [--limit HZ] [--range 70] [--scheme 0|1|2] [--from S] [--to S]\n"
    "       [--f0 [--f0-min 70] [--f0-max 400]] [--formants]\n";

#ifdef SONALYS_WITH_QT
// The upper frequency the panel selects first for a rate: the third entry of its list, or the whole band at a
// rate the list does not know.
int defaultLimit(int rate) {
    switch (rate) {
    case 11025: return 5512;
    case 22050:
    case 44100: return 7350;
    default: return rate / 2;
    }
}

struct PictureSettings {
    int width = 671;
    int height = 300;
    int band = 40;
    int limit = 0;
    int range = kDefaultDynamicRange;
    int scheme = kDefaultColourScheme;
    F0Range f0Range = kStartF0Range;
};

bool isBand(long long hz) { return hz == 10 || hz == 40 || hz == 80 || hz == 150 || hz == 300 || hz == 400; }

// Reads and checks the picture's options; false, with the reason on the error stream, when one is wrong.
bool readSettings(Args& args, int rate, PictureSettings& s) {
    const long long width = args.integer("width", s.width);
    const long long height = args.integer("height", s.height);
    const long long band = args.integer("band", s.band);
    const long long limit = args.integer("limit", defaultLimit(rate));
    const long long range = args.integer("range", s.range);
    const long long scheme = args.integer("scheme", s.scheme);
    const long long f0Min = args.integer("f0-min", s.f0Range.minimum);
    const long long f0Max = args.integer("f0-max", s.f0Range.maximum);
    if (!args.ok()) {
        std::cerr << "sonalys-analyze spectrogram: " << args.error() << "\n";
        return false;
    }
    const char* problem = nullptr;
    if (width < 1 || width > 20000) problem = "--width must be 1 to 20000 pixels";
    if (height < 1 || height > kMaxSpectrogramRows) problem = "--height must be 1 to 2048 pixels";
    if (!isBand(band)) problem = "--band must be 10, 40, 80, 150, 300 or 400";
    if (limit < 1 || limit > rate / 2) problem = "--limit must lie above 0 and at most at half the sample rate";
    if (range < 0 || range > 100) problem = "--range must be 0 to 100 dB";
    if (scheme < 0 || scheme > 2) problem = "--scheme must be 0, 1 or 2";
    const F0Range f0Range{static_cast<int>(std::clamp(f0Min, 0LL, 100000LL)),
                          static_cast<int>(std::clamp(f0Max, 0LL, 100000LL))};
    if (F0RangeProblem(f0Range)) problem = "--f0-min and --f0-max must lie from 50 to 1200 Hz, the minimum below";
    if (problem != nullptr) {
        std::cerr << "sonalys-analyze spectrogram: " << problem << "\n";
        return false;
    }
    s = {static_cast<int>(width),
         static_cast<int>(height),
         static_cast<int>(band),
         static_cast<int>(limit),
         static_cast<int>(range),
         static_cast<int>(scheme),
         f0Range};
    return true;
}

// Paints each column into the picture through the palette, top row first.
class ImagePainter : public ColumnPainter {
public:
    ImagePainter(QImage& image, const Palette& palette) : m_image(image), m_palette(palette) {}
    void paintColumn(int c, std::span<const std::uint8_t> levels) override {
        for (std::size_t row = 0; row < levels.size(); ++row)
            setPixel(c, static_cast<int>(row), m_palette[static_cast<std::size_t>(paletteEntryForLevel(levels[row]))]);
    }
    void blankColumn(int c) override {
        for (int row = 0; row < m_image.height(); ++row) setPixel(c, row, m_palette[kBackgroundEntry]);
    }

private:
    void setPixel(int x, int y, const Rgb& colour) {
        m_image.setPixel(x, y, qRgb(colour.red, colour.green, colour.blue));
    }
    QImage& m_image;
    const Palette& m_palette;
};

// The curves over the picture: computed over the whole recording as the view computes them, and drawn over the
// range shown, formants first and F0 over them.
void drawCurves(QImage& image, Args& args, const std::vector<std::int16_t>& samples, int rate, const SampleRange& range,
                const PictureSettings& settings, double upperHz) {
    const bool f0 = args.has("f0");
    const bool formants = args.has("formants");
    if (!f0 && !formants) return;
    F0Track f0Track;
    computeF0Curve(f0Track, samples.data(), static_cast<int>(samples.size()), rate);
    QPainter painter(&image);
    const QRect graph(0, 0, settings.width, settings.height);
    const auto total = static_cast<std::int64_t>(samples.size());
    const auto first = static_cast<std::int64_t>(range.first);
    const auto end = static_cast<std::int64_t>(range.end);
    if (formants) {
        StreamPrompt prompt(std::cerr);
        FormantTracker tracker(prompt);
        const unsigned cores = std::thread::hardware_concurrency();
        tracker.setThreadCount(cores == 0 ? 1 : static_cast<int>(cores));
        FormantTrack track;
        tracker.computeFormants(track, samples, rate);
        DrawFormants(painter, graph, track, total, upperHz, first, end, settings.scheme, f0Track);
    }
    if (f0) DrawF0(painter, graph, f0Track, total, first, end, settings.f0Range, settings.scheme);
}
#endif

}  // namespace

int runSpectrogram(CommandArgs words) {
    Args args(words, {"f0", "formants"});
    args.allowOnly({"out", "width", "height", "band", "limit", "range", "scheme", "from", "to", "f0", "f0-min",
                    "f0-max", "formants"});
    const auto out = args.value("out");
    if (!args.ok() || args.positional().size() != 1 || !out || out->empty()) {
        if (!args.ok()) std::cerr << "sonalys-analyze spectrogram: " << args.error() << "\n";
        std::cerr << kUsage;
        return 1;
    }
#ifndef SONALYS_WITH_QT
    std::cerr << "sonalys-analyze spectrogram: pictures are not available in this build (made without Qt)\n";
    return 2;
#else
    const auto input = loadMonoInput(std::string(args.positional()[0]), std::cerr);
    if (!input) return 2;
    const int rate = static_cast<int>(input->format.nSamplesPerSec);
    PictureSettings settings;
    if (!readSettings(args, rate, settings)) {
        std::cerr << kUsage;
        return 1;
    }
    const auto range = readSampleRange(args, input->samples.size(), rate, std::cerr);
    if (!args.ok()) {
        std::cerr << "sonalys-analyze spectrogram: " << args.error() << "\n" << kUsage;
        return 1;
    }
    if (!range) return 2;

    Spectrogram spectrogram;
    spectrogram.setSampleRate(rate);
    spectrogram.setBandwidth(settings.band);
    spectrogram.setMaxFrequency(settings.limit);
    const Palette palette = BuildPalette(settings.range, settings.scheme);
    QImage image(settings.width, settings.height, QImage::Format_RGB32);
    image.fill(qRgb(palette[kBackgroundEntry].red, palette[kBackgroundEntry].green, palette[kBackgroundEntry].blue));
    ImagePainter painter(image, palette);
    // The frames may reach past the end of the range into the rest of the recording, as on the screen.
    spectrogram.computeColumns(settings.width, settings.height,
                               std::span<const std::int16_t>(input->samples).subspan(range->first), range->from,
                               range->to, rate, painter);
    drawCurves(image, args, input->samples, rate, *range, settings, rate * 0.5 / spectrogram.zoom());
    if (!image.save(QString::fromStdString(std::string(*out)), "PNG")) {
        std::cerr << "sonalys-analyze spectrogram: could not write " << *out << "\n";
        return 2;
    }
    return 0;
#endif
}
