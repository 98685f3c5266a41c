#include "view/GraphCaptions.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "controls/CellFont.h"
#include "controls/DecimalText.h"
#include "controls/UiText.h"
#include "store/TextFormat.h"

namespace {

QString text(std::string_view english) { return uiText(english); }

constexpr int kCaptionHeight = 25;
constexpr int kLineHeight = 13;

}  // namespace

// The small layout's row is lower than the caption and the format line under it: the band reaches down to hold
// them both.
int CaptionBandBottom(const ViewLayout& layout) {
    return std::max(layout.TitleTop + layout.TitleHeight, CaptionTop(layout) + kCaptionHeight + kLineHeight);
}

std::string DurationText(std::int64_t count, int rate) {
    if (rate <= 0) rate = 1;
    double seconds = static_cast<double>(count) / rate;
    int minutes = 0;
    if (seconds > 60.0) {
        minutes = static_cast<int>(seconds / 60.0);
        seconds -= minutes * 60.0;
    }
    double whole = 0.0;
    const double fraction = std::modf(seconds, &whole);
    return formatText(kDurationFormat.data(), minutes, static_cast<int>(whole), static_cast<int>(fraction * 1000.0));
}

std::string FormatLineText(const WaveFormat& format) {
    // The template is looked up before it is filled in: a filled-in line has no translation of its own.
    std::string line = formatText(text(kFormatLine).toStdString().c_str(), static_cast<int>(format.nSamplesPerSec),
                                  static_cast<int>(format.wBitsPerSample));
    return line + (format.nChannels == 1 ? text(kMonoSuffix) : text(kStereoSuffix)).toStdString();
}

std::string FileLineText(int recordingNumber, const std::filesystem::path& path) {
    if (recordingNumber == -1) return path.filename().string();
    if (recordingNumber == -2) return text(kModelCaption).toStdString();
    return formatText(text(kFileNumber).toStdString().c_str(), recordingNumber);
}

std::string TimeAxisLabel(std::int64_t first, std::int64_t last, int rate, int i) {
    const double r = rate > 0 ? rate : 1;
    const double seconds = first / r + i * ((last - first) / r / 6.0);
    return DecimalText(seconds, 2) + std::string(kSecondsSuffix);
}

QFont AxisLabelFont() { return CellHeightFont("Arial", 11, true); }
QFont FormatLineFont() { return CellHeightFont("Verdana", kLineHeight, true); }
QFont CaptionFont() { return CellHeightFont("Verdana", kCaptionHeight, true); }
QFont InputCaptionFont() { return CellHeightFont("Arial", 18, true); }

void DrawGraphFrame(QPainter& painter, const ViewLayout& layout) {
    const QRect frame = layout.frameRect();
    painter.save();
    painter.fillRect(frame, Qt::white);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
    painter.restore();
}

// Where the caption row's texts start: 5 pixels into the row on the small layout, 20 on the large one. The boxes
// are as high as the lines of their fonts, so that no descender is cut.
int CaptionTop(const ViewLayout& layout) { return layout.TitleTop + (layout.LargeLayout ? 20 : 5); }

QRect TimeCaptionRect(const ViewLayout& layout) {
    return QRect(layout.graphRight() - 520, CaptionTop(layout), 520, kCaptionHeight);
}

void DrawCaptionRow(QPainter& painter, const ViewLayout& layout, DisplayMode mode, const QString& duration) {
    // The band runs across the whole window, also where the page, kept in shape, leaves room at its sides.
    const QRectF window = painter.worldTransform().inverted().mapRect(QRectF(painter.viewport()));
    painter.save();
    painter.fillRect(
        QRectF(QPointF(window.left(), std::min(0.0, window.top())), QPointF(window.right(), CaptionBandBottom(layout))),
        QColor::fromRgb(kTextRowColour));
    painter.setPen(Qt::black);
    painter.setFont(CaptionFont());
    const int top = CaptionTop(layout);
    const bool spectrogram = mode == DisplayMode::LiveSpectrogramMode || mode == DisplayMode::FileSpectrogramMode;
    painter.drawText(QRect(layout.GraphLeft - 80, top, 440, kCaptionHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     text(spectrogram ? kSpectrogramCaption : kPowerSpectrumCaption));
    painter.drawText(TimeCaptionRect(layout), Qt::AlignRight | Qt::AlignVCenter, text(kTimeCaption) + duration);
    painter.restore();
}

void DrawFormatLine(QPainter& painter, const ViewLayout& layout, const QString& line) {
    painter.save();
    painter.setPen(Qt::black);
    painter.setFont(FormatLineFont());
    painter.drawText(QRect(176 + layout.XOffset, CaptionTop(layout) + kCaptionHeight, 400, kLineHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, line);
    painter.restore();
}

void DrawFileLine(QPainter& painter, const ViewLayout& layout, const QString& line) {
    painter.save();
    painter.setPen(Qt::black);
    painter.setFont(FormatLineFont());
    painter.drawText(QRect(layout.graphRight() - 400, CaptionTop(layout) + kCaptionHeight, 400, kLineHeight),
                     Qt::AlignRight | Qt::AlignVCenter, text(kFileCaption) + QLatin1Char(' ') + line);
    painter.restore();
}

QRect InputBox(const ViewLayout& layout) {
    return QRect(layout.GraphLeft - (layout.LargeLayout ? 136 : 90), layout.GraphTop, 40, layout.GraphHeight);
}

void DrawInputCaptions(QPainter& painter, const ViewLayout& layout, bool lineInput) {
    const int left = InputBox(layout).left();
    painter.save();
    painter.setPen(Qt::black);
    painter.setFont(InputCaptionFont());
    painter.drawText(QRect(left, layout.GraphTop, 40, 20), Qt::AlignHCenter | Qt::AlignVCenter, text(kVolumeCaption));
    painter.drawText(QRect(left, layout.GraphTop + 20, 40, 20), Qt::AlignHCenter | Qt::AlignVCenter,
                     text(lineInput ? kLineCaption : kMicCaption));
    painter.restore();
}

void DrawTimeAxis(QPainter& painter, const ViewLayout& layout, std::int64_t first, std::int64_t last, int rate) {
    const int top = layout.graphBottom() + 4;
    painter.save();
    painter.fillRect(QRect(layout.GraphLeft - 40, layout.graphBottom() + 1, layout.GraphWidth + 80, 20), Qt::white);
    painter.setPen(QPen(Qt::black, 0));
    painter.setFont(AxisLabelFont());
    for (int i = 0; i <= 6; ++i) {
        const int x = layout.GraphLeft + (layout.GraphWidth / 6) * i;
        painter.drawText(QRect(x - 20, top, 70, 14), Qt::AlignLeft | Qt::AlignTop,
                         QString::fromStdString(TimeAxisLabel(first, last, rate, i)));
        if (i > 0) painter.drawLine(x + 2, top, x + 2, layout.graphBottom());
    }
    painter.restore();
}
