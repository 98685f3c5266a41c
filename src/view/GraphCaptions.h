// The texts around the graph: the read-out row with the page's caption and the duration of the shown range, the
// format line, the file line, the captions of the input sliders, and the time axis under the spectrogram.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include <QColor>
#include <QFont>
#include <QtGlobal>

#include "store/WaveFile.h"
#include "view/DisplayMode.h"
#include "view/ViewLayout.h"

class QPainter;

inline constexpr std::string_view kSpectrogramCaption = QT_TRANSLATE_NOOP("Sonalys", "Spectrogram");
inline constexpr std::string_view kPowerSpectrumCaption = QT_TRANSLATE_NOOP("Sonalys", "Power Spectrum");
inline constexpr std::string_view kTimeCaption = QT_TRANSLATE_NOOP("Sonalys", "Time: ");
// The hour is always the literal 00: a recording of over an hour counts its minutes past 59. The comma is part
// of the text, not the locale's.
inline constexpr std::string_view kDurationFormat = "00:%02d:%02d,%03d";
// The rate and the sample size; the units stay as they are in every language.
inline constexpr std::string_view kFormatLine = QT_TRANSLATE_NOOP("Sonalys", "%d Hz, %d Bits");
inline constexpr std::string_view kMonoSuffix = QT_TRANSLATE_NOOP("Sonalys", " Mono");
inline constexpr std::string_view kStereoSuffix = QT_TRANSLATE_NOOP("Sonalys", " Stereo");
inline constexpr std::string_view kFileCaption = QT_TRANSLATE_NOOP("Sonalys", "File:");
inline constexpr std::string_view kFileNumber = QT_TRANSLATE_NOOP("Sonalys", "File %d");
inline constexpr std::string_view kModelCaption = QT_TRANSLATE_NOOP("Sonalys", "Model");
inline constexpr std::string_view kVolumeCaption = QT_TRANSLATE_NOOP("Sonalys", "Vol");
inline constexpr std::string_view kMicCaption = QT_TRANSLATE_NOOP("Sonalys", "Mic");
inline constexpr std::string_view kLineCaption = QT_TRANSLATE_NOOP("Sonalys", "Line");
inline constexpr std::string_view kSecondsSuffix = " s";  // after a time with two decimals

// The background of the text rows: the face colour of dialogs and buttons.
inline constexpr QRgb kTextRowColour = 0xfff0f0f0;

// "00:mm:ss,mmm" of `count` samples at `rate` Hz. Minutes are split off only above 60 seconds; the milliseconds
// are the fraction of the seconds times 1000, truncated.
std::string DurationText(std::int64_t count, int rate);
// "%d Hz, %d Bits" and " Mono" or " Stereo" by the channels.
std::string FormatLineText(const WaveFormat& format);
// What follows "File:": "File %d" of a client's recording, the file's name for a file from elsewhere, "Model"
// for a model in the second view of a comparison.
std::string FileLineText(int recordingNumber, const std::filesystem::path& path);
// Label i of 0 to 6 of the time axis: the start of the range plus i sixths of its length, "%.2f s".
std::string TimeAxisLabel(std::int64_t first, std::int64_t last, int rate, int i);

// Fonts by element, by the height of their lines in pixels.
QFont AxisLabelFont();
QFont FormatLineFont();
QFont CaptionFont();
QFont InputCaptionFont();

// The frame around the graph: a black outline filled white.
void DrawGraphFrame(QPainter& painter, const ViewLayout& layout);
// The panel band and the read-out row in the face colour, the page's caption, and "Time: " with `duration`.
// The top of the row of the large captions (the page and the time).
int CaptionTop(const ViewLayout& layout);
// The bottom of the band of text rows above the graph (caption, format and file lines), in page pixels.
int CaptionBandBottom(const ViewLayout& layout);
// Where "Time: " and the duration stand, right-aligned, in the caption row.
QRect TimeCaptionRect(const ViewLayout& layout);
void DrawCaptionRow(QPainter& painter, const ViewLayout& layout, DisplayMode mode, const QString& duration);
// The format line under the caption, 176 pixels across from the left of the layout (moved with its offset).
void DrawFormatLine(QPainter& painter, const ViewLayout& layout, const QString& text);
// "File:" and its text, on the format line's row, ending at the graph's right edge.
void DrawFileLine(QPainter& painter, const ViewLayout& layout, const QString& text);
// The box left of the graph, as high as the graph: "Vol" and, under it, "Mic" or "Line" take its top 40 pixels, and
// the master and input volume sliders stand under them.
QRect InputBox(const ViewLayout& layout);
// "Vol" and, under it, "Mic" or "Line", in the box left of the graph.
void DrawInputCaptions(QPainter& painter, const ViewLayout& layout, bool lineInput);
// Seven time labels under the graph, with a tick over each but the first; the area is first cleared white.
void DrawTimeAxis(QPainter& painter, const ViewLayout& layout, std::int64_t first, std::int64_t last, int rate);
