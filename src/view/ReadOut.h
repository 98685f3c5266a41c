// The read-out box that follows the pointer over the graph: time and frequency on the spectrogram page, frequency
// and level on the power-spectrum page. The box is erased by restoring the finished graph under it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <QPoint>
#include <QRect>

#include "view/ViewLayout.h"

inline constexpr std::string_view kSpectrogramReadOut = "%.2f Hz   %.2f s";
inline constexpr std::string_view kSpectrumReadOut = "%.2f kHz   %.2f dB";
inline constexpr int kReadOutWidth = 125;
inline constexpr int kReadOutLineHeight = 16;

// The box of `lines` lines for a pointer at `pointer`: 125 pixels wide, right of the pointer, or left of it within
// 200 pixels of the graph's right end, its top 15 pixels above the pointer, and held inside the graph.
QRect ReadOutBox(const ViewLayout& layout, QPoint pointer, int lines = 1);
// Seconds at x: the shown range spread over the graph's width.
double ReadOutSeconds(const ViewLayout& layout, double x, std::int64_t firstShown, std::int64_t lastShown, int rate);
// Hz at y: 0 at the graph's bottom, `topHz` at its top.
double ReadOutHertz(const ViewLayout& layout, double y, double topHz);
// A read-out template with its "%.2f" fields filled in order, each with a decimal comma.
std::string ReadOutText(std::string_view format, double first, double second);
