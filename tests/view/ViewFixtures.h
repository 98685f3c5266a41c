// What the view's tests share: a client folder in a temporary data root holding a copy of a demo recording, WAV
// files made on the spot, and synthetic mouse input given in the page's own pixels.
#pragma once

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "FakePrompt.h"
#include "TempDir.h"
#include "base/ByteOrder.h"
#include "store/RecordingFiles.h"
#include "view/CAFView.h"

// A WAV file of the given format with `samples` as its data (interleaved when stereo).
inline std::string waveBytes(const std::vector<std::int16_t>& samples, std::uint32_t rate, std::uint16_t channels = 1,
                             std::uint16_t bits = 16) {
    std::vector<std::uint8_t> bytes = {'R', 'I', 'F', 'F'};
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    appendLE32(bytes, 36 + dataBytes);
    for (const char c : std::string_view("WAVEfmt ")) bytes.push_back(static_cast<std::uint8_t>(c));
    appendLE32(bytes, 16);
    appendLE16(bytes, 1);
    appendLE16(bytes, channels);
    appendLE32(bytes, rate);
    appendLE32(bytes, rate * channels * bits / 8);
    appendLE16(bytes, static_cast<std::uint16_t>(channels * bits / 8));
    appendLE16(bytes, bits);
    for (const char c : std::string_view("data")) bytes.push_back(static_cast<std::uint8_t>(c));
    appendLE32(bytes, dataBytes);
    for (const std::int16_t s : samples) appendLE16(bytes, static_cast<std::uint16_t>(s));
    return std::string(bytes.begin(), bytes.end());
}

// `seconds` of a sine of `hz` at `rate`, amplitude 10000.
inline std::vector<std::int16_t> sine(double hz, int rate, double seconds) {
    std::vector<std::int16_t> samples(static_cast<std::size_t>(rate * seconds));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<std::int16_t>(10000.0 * std::sin(2.0 * M_PI * hz * static_cast<double>(i) / rate));
    return samples;
}

inline std::filesystem::path demoRecording(const char* relative) {
    return std::filesystem::path(SONALYS_SOURCE_DIR) / "demo" / relative;
}

// A data root with client 1, whose folder pac001 holds the files the test puts there.
struct ClientRoot {
    TempDir root;
    ClientFolder folder{root.path(), 1};
    ClientRoot() { std::filesystem::create_directories(folder.path()); }
    void copyDemo(const char* relative, const char* name) {
        std::filesystem::copy_file(demoRecording(relative), folder.path() / name);
    }
    void write(const char* name, const std::string& bytes) const { root.write(std::string("pac001/") + name, bytes); }
};

// A view laid out for a screen of `screen` size and shown at the size of that screen's page.
inline void showForScreen(CAFView& view, QSize screen) {
    view.setScreenSize(screen);
    const QSizeF page = view.layout().pageSize();
    view.resize(QSize(static_cast<int>(page.width()),
                      static_cast<int>(std::lround(page.height() * view.layout().verticalStretch()))));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
}

// The first widget pixel that falls in page pixel `page`, for a widget at least as large as the page.
inline QPoint widgetPoint(const CAFView& view, QPoint page) {
    const QPointF at = view.layout().toWidget(QSizeF(view.size())).map(QPointF(page));
    return QPoint(static_cast<int>(std::ceil(at.x() - 1e-9)), static_cast<int>(std::ceil(at.y() - 1e-9)));
}

// The pointer moved over page pixel `page` with no button down.
inline void hoverAt(CAFView& view, QPoint page) {
    const QPointF at(widgetPoint(view, page));
    QMouseEvent move(QEvent::MouseMove, at, view.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
}

// A drag along the strip from page x `from` to `to`, at the strip's middle height.
inline void dragInStrip(CAFView& view, int from, int to) {
    const int y = view.layout().StripTop + view.layout().StripHeight / 2;
    QTest::mousePress(&view, Qt::LeftButton, {}, widgetPoint(view, {from, y}));
    for (int i = 1; i <= 10; ++i) QTest::mouseMove(&view, widgetPoint(view, {from + (to - from) * i / 10, y}));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, widgetPoint(view, {to, y}));
}
