#include "panels/PictureAxes.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "controls/CellFont.h"
#include "controls/DecimalText.h"
#include "store/TextFormat.h"

namespace {

constexpr int kLabelMargin = 50;   // width of the white margin left of the graph
constexpr int kLabelHeight = 14;   // height of a label's box
constexpr int kBottomMargin = 22;  // height of the white margin under the graph
constexpr int kTickLength = 4;

std::string khzText(double hz) { return DecimalText(hz / 1000.0, 1) + std::string(kKhzUnit); }

// The y of label i of `count`, from the bottom up over the height less 6.
int verticalLabelY(const SpectrumArea& area, int i, int count) {
    return area.bottom - 3 - i * (area.height() - 6) / (count - 1);
}

void drawVerticalLabels(QPainter& painter, const SpectrumArea& area, const std::vector<AxisLabel>& labels) {
    // The margin stops at the graph's bottom, clear of the labels under the graph.
    painter.fillRect(QRect(area.left - kLabelMargin, area.top - kLabelHeight / 2, kLabelMargin - 1,
                           area.height() + kLabelHeight / 2 + 1),
                     Qt::white);
    for (const AxisLabel& label : labels) {
        const QRect box(area.left - kLabelMargin, label.at - kLabelHeight / 2, kLabelMargin - kTickLength - 3,
                        kLabelHeight);
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(label.text));
        painter.drawLine(area.left - kTickLength, label.at, area.left - 1, label.at);
    }
}

}  // namespace

QFont AxisFont(bool twoViews) { return CellHeightFont("Arial", twoViews ? 10 : 11, !twoViews); }

int VerticalLabelCount(const SpectrumArea& area) { return area.height() < 300 ? 5 : 9; }

std::vector<AxisLabel> DbAxisLabels(const SpectrumArea& area) {
    const int count = VerticalLabelCount(area);
    std::vector<AxisLabel> labels;
    for (int i = 0; i < count; ++i) {
        const int y = verticalLabelY(area, i, count);
        const int dB = static_cast<int>(std::lround(SpectrumLevelAt(area, y)));
        labels.push_back({y, formatText(kDbLabel.data(), dB)});
    }
    return labels;
}

std::vector<AxisLabel> KhzAxisLabels(const SpectrumArea& area, double topHz) {
    const int width = area.right - area.left;
    std::vector<AxisLabel> labels;
    for (int i = 0; i < 6; ++i)
        labels.push_back({area.left + static_cast<int>(i * width / 5.5), khzText(i * (topHz / 5.5))});
    labels.push_back({area.right, khzText(topHz)});
    return labels;
}

std::vector<AxisLabel> FrequencyAxisLabels(const SpectrumArea& area, double topHz) {
    std::vector<AxisLabel> labels;
    if (!(topHz > 0.0) || area.height() <= 0) return labels;
    const int most = VerticalLabelCount(area);
    double step = 5000.0;
    for (const double candidate : {500.0, 1000.0, 2000.0}) {
        if (static_cast<int>(topHz / candidate) + 1 <= most) {
            step = candidate;
            break;
        }
    }
    for (int i = 0; i * step <= topHz; ++i) {
        const double hz = i * step;
        const int y = area.bottom - static_cast<int>(hz / topHz * area.height());
        labels.push_back(
            {std::min(y, area.bottom - 1), DecimalText(hz / 1000.0, step < 1000.0 ? 1 : 0) + std::string(kKhzUnit)});
    }
    return labels;
}

void DrawSpectrumAxes(QPainter& painter, const SpectrumArea& area, double topHz, bool twoViews) {
    painter.save();
    painter.setFont(AxisFont(twoViews));
    painter.setPen(QPen(Qt::black, 0));
    painter.fillRect(
        QRect(area.left - kLabelMargin, area.bottom + 1, area.right - area.left + kLabelMargin * 2, kBottomMargin),
        Qt::white);
    const std::vector<AxisLabel> labels = KhzAxisLabels(area, topHz);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const int x = labels[i].at;
        const Qt::Alignment align = i == 0 ? Qt::AlignLeft : i + 1 == labels.size() ? Qt::AlignRight : Qt::AlignHCenter;
        const int boxLeft = align == Qt::AlignLeft ? x : align == Qt::AlignRight ? x - 80 : x - 40;
        painter.drawText(QRect(boxLeft, area.bottom + kTickLength + 2, 80, kLabelHeight), align | Qt::AlignTop,
                         QString::fromStdString(labels[i].text));
        if (i > 0) painter.drawLine(x, area.bottom + 1, x, area.bottom + kTickLength);
    }
    drawVerticalLabels(painter, area, DbAxisLabels(area));
    painter.restore();
}

void DrawFrequencyAxis(QPainter& painter, const SpectrumArea& area, double topHz, bool twoViews) {
    painter.save();
    painter.setFont(AxisFont(twoViews));
    painter.setPen(QPen(Qt::black, 0));
    drawVerticalLabels(painter, area, FrequencyAxisLabels(area, topHz));
    painter.restore();
}
