// The two side panels on their own at the page's own scale, then inside the view: the update-rate bytes, the Limit
// lists, the dynamic-range pointer, the colour menus, the holds on the audio, and pictures of both pages.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "ViewFixtures.h"
#include "controls/LevelMeter.h"
#include "panels/CColorMenu.h"
#include "panels/CMyBarra.h"
#include "panels/CMyBarra2.h"

namespace {

constexpr int kStripLeft = 210;  // the small layout's strip
constexpr int kStripTop = 10;

struct FakeAudio : PanelAudio {
    bool playing = false;
    bool zoomed = false;
    QStringList calls;
    bool isPlaying() const override { return playing; }
    bool isZoomed() const override { return zoomed; }
    void PausePlay() override { calls << "pause"; }
    void RestartPlay() override { calls << "restart"; }
    void SetRecordPaused(bool paused) override { calls << (paused ? "record paused" : "record resumed"); }
    void ArmCursor() override { calls << "arm"; }
};

void mouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void dragPointer(CMyBarra& panel, int x, int y) {
    const QPoint grip = panel.pointerRect().center();
    mouse(panel, QEvent::MouseButtonPress, grip, Qt::LeftButton);
    mouse(panel, QEvent::MouseMove, {x, y}, Qt::LeftButton);
    mouse(panel, QEvent::MouseButtonRelease, {x, y}, Qt::NoButton);
}

void focus(QWidget* widget, QEvent::Type type) {
    QFocusEvent event(type, Qt::MouseFocusReason);
    QApplication::sendEvent(widget, &event);
}

void showAtPageScale(CMyBarra& panel) {
    panel.setPageScale(false, 1.0, 1.0);
    panel.resize(panel.pageSize(false));
    panel.show();
}

}  // namespace

class SidePanelsTest : public QObject {
    Q_OBJECT
private slots:
    void updateRateLineGivesBytesOfTheRate() {
        const struct {
            bool spectrum;
            int rate, line, bytes;
        } rows[] = {
            {false, 44100, 0, 735},                      // "1.0 ms  "
            {false, 11025, 1, int(11025 / 60.0 * 1.5)},  // "1.5 ms  ", truncated
            {false, 22050, 5, 1470},                     // "4.0 ms  ": 367.5 x 4
            {true, 11025, 0, int(11025 / 60.0 * 3.0)},   // "3.0   ms  "
            {true, 44100, 5, 7350},                      // "10.0 ms  "
        };
        for (const auto& [spectrum, rate, line, bytes] : rows) {
            CMyBarra spectrogramPanel;
            CMyBarra2 spectrumPanel;
            ClassAux& panel = spectrum ? static_cast<ClassAux&>(spectrumPanel) : spectrogramPanel;
            QSignalSpy changed(&panel, &ClassAux::updateRateChanged);
            panel.FillLimitList(rate);
            panel.UpdateRateBox()->setCurrentIndex(line);
            panel.ApplyUpdateRate();
            QCOMPARE(QList<QVariantList>(changed), (QList<QVariantList>{{bytes, line}}));
        }
    }

    void limitListFollowsTheRateAndAppliesItsThirdLine() {
        const std::pair<int, QStringList> rows[] = {
            {11025, {"2756 Hz", "3675 Hz", "5512 Hz"}},
            {22050, {"2756 Hz", "5512 Hz", "7350 Hz", "11025 Hz"}},
            {44100, {"2756 Hz", "5512 Hz", "7350 Hz", "11025 Hz", "14700 Hz", "22050 Hz"}},
            {16000, {}},  // an unknown rate leaves it empty
        };
        for (const auto& [rate, lines] : rows) {
            CMyBarra2 panel;
            QSignalSpy applied(&panel, &ClassAux::limitChanged);
            panel.FillLimitList(rate);
            QStringList shown;
            for (int i = 0; i < panel.LimitBox()->count(); ++i) shown << panel.LimitBox()->itemText(i);
            QCOMPARE(shown, lines);
            QCOMPARE(applied.size(), lines.isEmpty() ? 0 : 1);
            if (!lines.isEmpty()) QCOMPARE(applied[0][0].toInt(), lines[2].section(' ', 0, 0).toInt());
        }
    }

    void pointerReadsItsPositionBackWithTheKeptRounding() {
        CMyBarra panel;
        showAtPageScale(panel);
        QSignalSpy range(&panel, &CMyBarra::dynamicRangeChanged);
        QCOMPARE(panel.dynamicRange(), 70);  // the spectrogram's own default until the pointer moves
        QCOMPARE(panel.pointerRect().left(), kStripLeft - 4 + 2 * 70);
        QCOMPARE(panel.Value(), 71);  // 2 - trunc(144 * 100 / -196)

        dragPointer(panel, kStripLeft + 1, kStripTop);  // the pointer's left goes to x - 5 = strip left - 4
        QCOMPARE(panel.pointerRect().left(), kStripLeft - 4);
        QCOMPARE(panel.Value(), 0);
        dragPointer(panel, kStripLeft + 100, kStripTop + 26);  // too far below the strip: no move
        QCOMPARE(panel.Value(), 0);
        dragPointer(panel, kStripLeft + ClassAux::kStripWidth - 1, kStripTop);  // past the right edge less 2
        QCOMPARE(panel.Value(), 0);
        QTest::keyClick(&panel, Qt::Key_End);  // held at strip left + 194
        QCOMPARE(panel.pointerRect().left(), kStripLeft + 194);
        QCOMPARE(panel.Value(), 100);
        QCOMPARE(range.last()[0].toInt(), 100);
        panel.SetDynamicRange(70);
        QCOMPARE(panel.dynamicRange(), 71);
    }

    void spectrogramOffBlocksDraggingAndTheStripKeepsTheRange() {
        CMyBarra panel;
        showAtPageScale(panel);
        QSignalSpy range(&panel, &CMyBarra::dynamicRangeChanged);
        panel.spectrogramBox()->click();
        QCOMPARE(range.last()[0].toInt(), 0);
        QCOMPARE(panel.bitmap(), kPointerGreyed);
        const int left = panel.pointerRect().left();
        dragPointer(panel, kStripLeft + 20, kStripTop);
        QTest::keyClick(&panel, Qt::Key_Home);
        QCOMPARE(panel.pointerRect().left(), left);
        // The strip's strongest step keeps the colour of the remembered range, not the black of a range of 0.
        const Rgb strongest = BuildPalette(70, kDefaultColourScheme)[0];
        QCOMPARE(panel.grab().toImage().pixelColor(kStripLeft + 2, kStripTop + 7),
                 QColor(strongest.red, strongest.green, strongest.blue));
        panel.spectrogramBox()->click();
        QCOMPARE(range.last()[0].toInt(), 70);
        QCOMPARE(panel.bitmap(), kPointerLive);
    }

    void colourMenusGiveTheirSchemesAndColours() {
        // Lines 0 to 14 take the system palette's entries 0 to 6, 12, 7 and 13 to 18.
        const QList<QRgb> system = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080,
                                    0xc0c0c0, 0xc0dcc0, 0xa6caf0, 0xfffbf0, 0xa0a0a4, 0x808080, 0xff0000,
                                    0x00ff00, 0xffff00, 0x0000ff, 0xff00ff, 0x00ffff};
        const QList<int> positions = {0, 1, 2, 3, 4, 5, 6, 12, 7, 13, 14, 15, 16, 17, 18};
        for (int line = 0; line < positions.size(); ++line)
            QCOMPARE(CColorMenu2::LineColour(line, Qt::darkCyan).rgb() & 0xffffff, system[positions[line]]);
        QCOMPARE(CColorMenu2::LineColour(15, Qt::darkCyan), QColor(Qt::darkCyan));

        CMyBarra2 spectrumPanel;
        QSignalSpy colour(&spectrumPanel, &CMyBarra2::curveColourChanged);
        spectrumPanel.OnColorCommand(kFirstColourCommand + 13);
        QCOMPARE(colour.last()[0].value<QColor>(), QColor(Qt::magenta));
        CMyBarra panel;
        QSignalSpy scheme(&panel, &CMyBarra::colourSchemeChanged);
        for (const int command : {30145, 30147, 30148}) panel.OnColorCommand(command);
        QCOMPARE(scheme.size(), 2);
        QCOMPARE(panel.colourScheme(), 2);
        CColorMenu menu(1, 1.0, nullptr);
        QCOMPARE(menu.size(), QSize(120 + 2, 3 * 15 + 2));
        QTimer::singleShot(0, &menu, [&menu] {
            QTest::keyClick(&menu, Qt::Key_Down);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        QCOMPARE(menu.exec(QPoint(0, 0)), 30147);
    }

    void openListHoldsTheAudioUntilItsFocusGoes() {
        const struct {
            int list;
            bool playing, zoomed, pausedByButton;
            QStringList onFocus, onLeaving;
        } rows[] = {
            // Band in a play pauses it and throws captured buffers away.
            {kIdBand, true, false, false, {"pause", "record paused"}, {"restart", "record resumed"}},
            // Update Rate leaves a zoomed play running and pauses a play of the whole recording.
            {kIdUpdateRate, true, true, false, {"record paused"}, {"record resumed"}},
            {kIdUpdateRate, true, false, false, {"pause"}, {"restart"}},
            // Limit in a zoomed play arms the cursor when it resumes.
            {kIdLimit, true, true, false, {"pause"}, {"restart", "arm"}},
            // Capture paused by its button stays as it is.
            {kIdLimit, false, false, true, {}, {}},
        };
        for (const auto& row : rows) {
            CMyBarra panel;
            FakeAudio audio;
            audio.playing = row.playing;
            audio.zoomed = row.zoomed;
            panel.setAudio(&audio);
            if (row.pausedByButton) panel.showIcon(panel.PauseRecordButton(), PanelIcon::Record);
            QCOMPARE(panel.capturePausedByButton(), row.pausedByButton);
            auto* box = panel.findChild<QComboBox*>(QStringLiteral("control%1").arg(row.list));
            focus(box, QEvent::FocusIn);
            QCOMPARE(audio.calls, row.onFocus);
            audio.calls.clear();
            focus(box, QEvent::FocusOut);
            QCOMPARE(audio.calls, row.onLeaving);
        }
    }

    void panelChangesReachTheViewsSettings() {
        FakePrompt prompt;
        CAFView view(prompt);
        CMyBarra& spectrogram = *view.spectrogramPanel();
        spectrogram.BandBox()->setCurrentIndex(3);
        spectrogram.ApplyBand();
        QCOMPARE(view.spectrogramSettings().bandwidth, 150);
        QCOMPARE(view.spectrogramObject().bandwidth(), 150.0f);
        spectrogram.SetDynamicRange(40);
        QCOMPARE(view.spectrogramSettings().dynamicRange, spectrogram.Value());
        spectrogram.OnColorCommand(30145);
        QCOMPARE(view.spectrogramSettings().colourScheme, 0);
        // While the Limit list is open the buffers captured are thrown away.
        focus(spectrogram.LimitBox(), QEvent::FocusIn);
        QVERIFY(view.RecordPaused);
        focus(spectrogram.LimitBox(), QEvent::FocusOut);
        QVERIFY(!view.RecordPaused);
        CMyBarra2& spectrum = *view.spectrumPanel();
        spectrum.FftSizeBox()->setCurrentIndex(2);
        spectrum.ApplyFftSize();
        QCOMPARE(view.spectrumSettings().fftSize, 1024);
        QCOMPARE(view.spectrumObject().fftSize(), 1024);
        spectrum.LtasBox()->click();
        QVERIFY(view.spectrumSettings().ltas);
        // The F0 box alone says whether the curve is shown: a click shows it, and the view's own call moves the box.
        spectrogram.f0Box()->click();
        QVERIFY(view.f0Shown());
        view.RedrawF0(false);
        QVERIFY(!spectrogram.f0Checked());
        // A rate from the rate button reaches the live page: 44100 Hz offers six upper limits where 11025 had three.
        view.ShowSpectrogramPage();
        QCOMPARE(spectrogram.LimitBox()->count(), 3);
        view.SetRecordFormat(7);
        QCOMPARE(spectrogram.LimitBox()->count(), 6);
    }

    void picturesOfEachPanelOnItsPage() {
        for (const QSize screen : {QSize(1024, 768), QSize(1920, 1080)}) {
            ClientRoot client;
            client.copyDemo("pac001/wv001.wav", "wv001.wav");
            FakePrompt prompt;
            CAFView view(prompt);
            showForScreen(view, screen);
            view.setCurrentClient(client.folder, "Demo client");
            QCOMPARE(view.OpenRecording(0, 1), 1);
            const QString folder = QDir::current().filePath("screenshots");
            QDir().mkpath(folder);
            for (const bool spectrum : {false, true}) {
                if (spectrum) view.ShowSpectrumPage();
                ClassAux* panel = view.ActivePanel();
                QCOMPARE(panel, spectrum ? static_cast<ClassAux*>(view.spectrumPanel()) : view.spectrogramPanel());
                QVERIFY(panel->isVisible() && panel->PlayButton()->isEnabled());
                // In the band above the read-out row, scaled with the page.
                const QRect row =
                    view.layout().toWidget(QSizeF(view.size())).mapRect(QRect(0, view.layout().TitleTop, 1, 1));
                QVERIFY(panel->geometry().bottom() < row.top());
                QVERIFY(view.rect().contains(panel->geometry()));
                // The input meter stands over the two record buttons and covers no other control; a peak at -4.3 dBFS
                // (20000 of 32768) shows amber.
                LevelMeter* meter = panel->InputMeter();
                const QRect record = panel->RecordButton()->geometry().united(panel->PauseRecordButton()->geometry());
                QVERIFY(meter->geometry().bottom() < record.top() && meter->geometry().left() >= record.left());
                QVERIFY(meter->geometry().right() <= record.right());
                for (const QWidget* control : panel->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                    QVERIFY(control == meter || !control->isVisible() ||
                            !control->geometry().intersects(meter->geometry()));
                InputLevel level;
                level.addBlock(std::vector<std::int16_t>{20000, -20000, 6000, -6000});
                meter->setLevel(level);
                QCOMPARE(meter->grab().toImage().pixelColor(1, meter->height() / 2),
                         LevelMeter::zoneColour(LevelZone::NearFullScale));
                const QString name = QString("panel-%1-%2x%3").arg(spectrum ? "spectrum" : "spectrogram");
                QVERIFY(view.grab().save(folder + "/" + name.arg(screen.width()).arg(screen.height()) + ".png"));
            }
            // The other style of the spectrum, with the long-term average over it.
            view.spectrumPanel()->VisualisationBox()->setCurrentIndex(1);
            emit view.spectrumPanel()->VisualisationBox()->activated(1);  // as when the user picks the line
            QCOMPARE(view.spectrumSettings().style, SpectrumStyle::Line);
            view.spectrumPanel()->LtasBox()->click();
            QVERIFY(view.grab().save(
                QString("%1/panel-spectrum-line-ltas-%2x%3.png").arg(folder).arg(screen.width()).arg(screen.height())));
        }
    }
};

QTEST_MAIN(SidePanelsTest)
#include "SidePanels_test.moc"
