#include "view/GraphCaptions.h"

#include <cmath>

#include <QPainter>

#include "controls/DecimalText.h"
#include "controls/UiText.h"
#include "store/TextFormat.h"

namespace {

QFont font(const char* face, int pixels, bool bold) {
    QFont f(QString::fromLatin1(face));
    f.setPixelSize(pixels);
    f.setBold(bold);
    return f;
}

QString text(std::string_view english) { return uiText(english); }

// Where the caption row's texts start: 5 pixels into the row on the small layout, 20 on the large one.
constexpr int kCaptionHeight = 25;
constexpr int kLineHeight = 15;

}  // namespace

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
    std::string line = formatText(kFormatLine.data(), static_cast<int>(format.nSamplesPerSec),
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

QFont AxisLabelFont() { return font("Arial", 11, true); }
QFont FormatLineFont() { return font("Verdana", 13, true); }
QFont CaptionFont() { return font("Verdana", 25, true); }
QFont InputCaptionFont() { return font("Arial", 18, true); }

void DrawGraphFrame(QPainter& painter, const ViewLayout& layout) {
    const QRect frame = layout.frameRect();
    painter.save();
    painter.fillRect(frame, Qt::white);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
    painter.restore();
}

int CaptionTop(const ViewLayout& layout) { return layout.TitleTop + (layout.LargeLayout ? 20 : 5); }

void DrawCaptionRow(QPainter& painter, const ViewLayout& layout, DisplayMode mode, const QString& duration) {
    const double width = layout.pageSize().width();
    painter.save();
    painter.fillRect(QRectF(0, 0, width, layout.TitleTop + layout.TitleHeight), QColor::fromRgb(kTextRowColour));
    painter.setPen(Qt::black);
    painter.setFont(CaptionFont());
    const int top = CaptionTop(layout);
    const bool spectrogram = mode == DisplayMode::LiveSpectrogramMode || mode == DisplayMode::FileSpectrogramMode;
    painter.drawText(QRect(layout.GraphLeft - 80, top, 440, kCaptionHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     text(spectrogram ? kSpectrogramCaption : kPowerSpectrumCaption));
    const int timeLeft = layout.graphRight() - 520;
    painter.drawText(QRect(timeLeft, top, 520, kCaptionHeight), Qt::AlignRight | Qt::AlignVCenter,
                     text(kTimeCaption) + duration);
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

void DrawInputCaptions(QPainter& painter, const ViewLayout& layout, bool lineInput) {
    const int left = layout.GraphLeft - (layout.LargeLayout ? 136 : 90);
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
