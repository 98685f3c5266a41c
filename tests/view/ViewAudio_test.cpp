// Recording and playing from the window against scripted sound devices: the panel's buttons drive the engines, every
// buffer back reaches the live page, and a take ends kept, dropped or cut short as the user and the device decide.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QSignalSpy>
#include <QToolButton>

#include "FakeWaveDevices.h"
#include "ViewFixtures.h"
#include "audio/WavePlayer.h"
#include "audio/WaveRecorder.h"
#include "controls/UiText.h"
#include "panels/CMyBarra.h"
#include "store/DateFile.h"
#include "store/WaveFile.h"

namespace {

constexpr int kBufferSamples = 229;  // the default Update Rate line at 11025 Hz gives buffers of 458 bytes

// A view of client 1 with its own scripted devices and engines, on the live spectrogram page.
struct AudioView {
    ClientRoot client;
    FakePrompt prompt;
    FakeWaveInDevice input;
    FakeWaveOutDevice output;
    WaveRecorder recorder{input, prompt, client.root.path()};
    WavePlayer player{output, prompt};
    CAFView view{prompt};

    AudioView() {
        recorder.SetCrashMarkerEnabled(false);
        view.setAudioEngines(&recorder, &player);
        showForScreen(view, QSize(1024, 768));
        view.setCurrentClient(client.folder, "Ana");
        view.ShowSpectrogramPage();
    }
    CMyBarra& panel() const { return *view.spectrogramPanel(); }
    void click(QToolButton* button) {
        QTest::mouseClick(button, Qt::LeftButton);
        pumpDeviceEvents();
    }
    void capture(const std::vector<std::int16_t>& samples) {
        input.capture(std::span<const std::int16_t>(samples));
        pumpDeviceEvents();
    }
    std::filesystem::path take(int number) const {
        return client.folder.path() / QString::asprintf("wv%03d.wav", number).toStdString();
    }
};

}  // namespace

class ViewAudioTest : public QObject {
    Q_OBJECT
private slots:
    void aTakeDrawsLiveAndPausedSoundStaysOutOfTheFile();
    void aDroppedTakeLeavesNothingAndALostDeviceKeepsWhatCameIn();
    void aPlayDrawsLiveStopsOnTheButtonAndPlaysAgain();
    void bothLivePagesAndAZoomedPlayWithItsCursor();
};

void ViewAudioTest::aTakeDrawsLiveAndPausedSoundStaysOutOfTheFile() {
    AudioView a;
    a.click(a.panel().RecordButton());
    QVERIFY(a.view.Recording);
    QVERIFY(a.panel().shows(a.panel().RecordButton(), PanelIcon::Stop));
    QCOMPARE(a.view.document()->title(), QString("Ana  File - 1"));

    const std::vector<std::int16_t> first = counting(20 * kBufferSamples, 0);
    a.capture(first);
    QCOMPARE(a.view.bytePosition(), static_cast<std::int64_t>(first.size() * 2));
    QCOMPARE(a.view.picture().columnsDone(), 40);  // two columns per buffer
    QVERIFY(a.view.liveTrace().count() > 0);
    // A modal dialog throws the buffers away while it is open; capture goes on after it.
    a.view.HoldAudioForDialog(true);
    a.capture(counting(3 * kBufferSamples, 7000));
    a.view.HoldAudioForDialog(false);

    // Paused, the take so far is on screen; what the device brings meanwhile is thrown away.
    a.click(a.panel().PauseRecordButton());
    QVERIFY(std::ranges::equal(a.view.loadedRecording().samples(), first));
    QVERIFY(a.panel().PlayButton()->isEnabled());
    a.capture(counting(5 * kBufferSamples, 5000));
    // The paused take played whole, paused and stopped: the take goes on from the same column afterwards.
    a.click(a.panel().PlayButton());
    QVERIFY(a.view.Playing && !a.panel().PauseRecordButton()->isEnabled());
    a.output.play(2);
    pumpDeviceEvents();
    a.click(a.panel().PausePlayButton());
    QVERIFY(a.output.calls.back() == "pause" && a.panel().shows(a.panel().PausePlayButton(), PanelIcon::Play));
    // A dialog over a play the user paused, and over a take paused by its button, leaves both paused.
    a.view.HoldAudioForDialog(true);
    a.view.HoldAudioForDialog(false);
    QVERIFY(a.output.calls.back() == "pause" && a.view.RecordPaused);
    a.click(a.panel().PausePlayButton());
    QVERIFY(a.output.calls.back() == "restart");
    a.click(a.panel().PlayButton());
    QVERIFY(!a.view.Playing && a.panel().PauseRecordButton()->isEnabled());
    QCOMPARE(a.view.bytePosition(), static_cast<std::int64_t>(first.size() * 2));
    QCOMPARE(a.view.picture().columnsDone(), 40);
    a.click(a.panel().PauseRecordButton());
    QVERIFY(!a.view.loadedRecording().hasSamples());
    std::vector<std::int16_t> second = counting(10 * kBufferSamples, 10000);
    second[7] = 32767;  // one sample at full scale: the take clipped
    a.capture(second);
    QCOMPARE(a.view.inputLevel().zone(), LevelZone::Normal);  // the last block did not clip
    QVERIFY(a.view.inputLevel().clipped());

    a.prompt.answers = {true};
    a.click(a.panel().RecordButton());
    QVERIFY(!a.view.Recording);
    QCOMPARE(a.prompt.last(), std::string("Do you Want to save the actual File?\n\n") + std::string(kTakeClipped));
    QVERIFY(a.input.calls.back() == "close");
    LoadedRecording kept;
    QCOMPARE(kept.LoadSamples(a.take(1)), 1);
    std::vector<std::int16_t> both = first;
    both.insert(both.end(), second.begin(), second.end());
    QVERIFY(std::ranges::equal(kept.samples(), both));
    QVERIFY(ReadDateFile(recordingFilePath(a.client.folder, "wv", 1, "ddt"), a.prompt) > 0);
    QCOMPARE(a.view.displayMode(), DisplayMode::FileSpectrogramMode);
    QVERIFY(std::ranges::equal(a.view.loadedRecording().samples(), kept.samples()));
    QVERIFY(a.panel().shows(a.panel().RecordButton(), PanelIcon::Record));

    // From the file page a new take goes to the live page of the same kind, with the next number.
    a.click(a.panel().RecordButton());
    QCOMPARE(a.view.displayMode(), DisplayMode::LiveSpectrogramMode);
    QCOMPARE(a.view.document()->title(), QString("Ana  File - 2"));
}

void ViewAudioTest::aDroppedTakeLeavesNothingAndALostDeviceKeepsWhatCameIn() {
    AudioView a;
    // A device that refuses to open: the Record button stays disabled until a page is shown anew.
    a.input.failAt("open", 1, MMSYSERR_BADDEVICEID);
    a.click(a.panel().RecordButton());
    QVERIFY(!a.view.Recording && !a.panel().RecordButton()->isEnabled());
    a.view.ShowSpectrumPage();
    a.view.ShowSpectrogramPage();
    QVERIFY(a.panel().RecordButton()->isEnabled());
    QSignalSpy said(&a.view, &CAFView::busyText);
    a.click(a.panel().RecordButton());
    // Seconds of nothing but the input's own noise: the input is most likely not the one the voice reaches.
    for (int second = 0; second < 4; ++second) a.capture(std::vector<std::int16_t>(11025, 1));
    QCOMPARE(said.count(), 1);
    QCOMPARE(said.at(0).at(0).toString(), uiText(kInputSilent));
    a.prompt.answers = {false};
    a.click(a.panel().RecordButton());
    QVERIFY(!std::filesystem::exists(a.take(1)));
    QVERIFY(!std::filesystem::exists(recordingFilePath(a.client.folder, "wv", 1, "ddt")));
    QCOMPARE(a.view.displayMode(), DisplayMode::LiveSpectrogramMode);
    QVERIFY(!a.view.loadedRecording().hasSamples());

    // The same number again: the dropped take never took it.
    a.click(a.panel().RecordButton());
    const std::vector<std::int16_t> heard = counting(6 * kBufferSamples, 300);
    a.capture(heard);
    a.prompt.answers = {true};
    a.input.fail(WAVERR_DEVICELOST);
    pumpDeviceEvents();
    QVERIFY(!a.view.Recording);
    QCOMPARE(a.prompt.shown.at(a.prompt.shown.size() - 2), waveErrorText(WAVERR_DEVICELOST));
    LoadedRecording kept;
    QCOMPARE(kept.LoadSamples(a.take(1)), 1);
    QVERIFY(std::ranges::equal(kept.samples(), heard));

    // Without a client the take goes where the save dialog says, with its date file; Cancel leaves nothing.
    const ClientFolder outside{a.client.root.path(), OutsideClientCode};
    std::filesystem::create_directories(outside.path());
    a.view.setCurrentClient(outside, QString());
    for (const bool chosen : {true, false}) {
        const std::filesystem::path target = a.client.root / (chosen ? "kept.wav" : "never.wav");
        a.view.setTakeSaveChooser([&](const std::filesystem::path& folder) {
            return folder == outside.path() && chosen ? target : std::filesystem::path();
        });
        a.click(a.panel().RecordButton());
        a.capture(heard);
        a.click(a.panel().RecordButton());
        QCOMPARE(std::filesystem::exists(target), chosen);
        QCOMPARE(std::filesystem::exists(std::filesystem::path(target).replace_extension("ddt")), chosen);
        QVERIFY(std::filesystem::is_empty(outside.path()));
    }
    QCOMPARE(a.view.document()->title(), QString());  // the dropped take left no title
}

void ViewAudioTest::aPlayDrawsLiveStopsOnTheButtonAndPlaysAgain() {
    AudioView a;
    const std::vector<std::int16_t> voice = sine(220.0, 11025, 2.0);
    a.client.write("wv001.wav", waveBytes(voice, 11025));
    QCOMPARE(a.view.OpenRecording(0, 1), 1);

    for (int round = 0; round < 2; ++round) {
        a.output.sounded.clear();
        a.click(a.panel().PlayButton());
        QVERIFY(a.view.Playing);
        QVERIFY(a.panel().shows(a.panel().PlayButton(), PanelIcon::Stop));
        QVERIFY(!a.panel().RecordButton()->isEnabled());
        a.output.play(6);
        pumpDeviceEvents();
        a.view.HoldAudioForDialog(true);  // a running play pauses for a dialog and goes on after it
        QVERIFY(a.output.calls.back() == "pause");
        a.view.HoldAudioForDialog(false);
        QVERIFY(a.output.calls.back() == "restart");
        QCOMPARE(a.view.picture().columnsDone(), 12);  // the live pass: two columns per header back
        QVERIFY(std::ranges::equal(std::span(a.output.sounded).first(3000),
                                   std::span(reinterpret_cast<const std::uint8_t*>(voice.data()), 3000)));
        if (round == 1) {
            // A new Update Rate: the play goes on from where it was, in chunks of the new size, with nothing lost.
            const std::size_t before = a.output.sounded.size();
            QComboBox* rate = a.panel().UpdateRateBox();
            rate->setCurrentIndex(rate->currentIndex() == 0 ? 1 : 0);
            a.panel().ApplyUpdateRate();
            pumpDeviceEvents();
            QVERIFY(a.view.Playing);
            // Chunks of the new Update Rate's samples, stretched a little to share out the rest evenly.
            const std::uint32_t chunk = static_cast<std::uint32_t>(a.recorder.updateRateBytes() / 2) * 2;
            QVERIFY(a.output.queuedLengths.back() >= chunk && a.output.queuedLengths.back() < chunk + chunk / 10);
            a.output.play(2);
            pumpDeviceEvents();
            QVERIFY(a.output.sounded.size() > before);
            QCOMPARE(std::memcmp(a.output.sounded.data(), voice.data(), a.output.sounded.size()), 0);
        }
        a.click(a.panel().PlayButton());
        QVERIFY(!a.view.Playing);
        QCOMPARE(a.output.queued(), std::size_t{0});
        QVERIFY(a.output.calls.back() == "close");
        QVERIFY(a.panel().shows(a.panel().PlayButton(), PanelIcon::Play));
        QVERIFY(a.panel().RecordButton()->isEnabled());
    }

    // A selection plays in one header, exactly the samples under it.
    dragInStrip(a.view, a.view.layout().GraphLeft + 100, a.view.layout().GraphLeft + 200);
    a.output.sounded.clear();
    a.view.OnPlay();
    a.output.play(1);
    pumpDeviceEvents();
    const std::size_t perPixel = voice.size() / static_cast<std::size_t>(a.view.layout().GraphWidth);
    QCOMPARE(a.output.sounded.size(), 100 * perPixel * 2);
    QCOMPARE(std::memcmp(a.output.sounded.data(), voice.data() + 100 * perPixel, a.output.sounded.size()), 0);
    QVERIFY(!a.view.Playing);
}

// Speech recorded on both live pages, and a zoomed play with its cursor, saved as pictures for people to look at.
void ViewAudioTest::bothLivePagesAndAZoomedPlayWithItsCursor() {
    AudioView a;
    const WaveLoadResult speech = WaveLoad(demoRecording("pac001/wv001.wav"));
    QCOMPARE(speech.format.nSamplesPerSec, 22050u);
    a.view.SetRecordFormat(5);  // 22050 Hz
    a.panel().f0Box()->setChecked(true);
    QDir().mkpath("screenshots");
    a.prompt.defaultAnswer = false;  // the takes are dropped
    for (const bool spectrum : {false, true}) {
        if (spectrum) a.view.ShowSpectrumPage();
        ClassAux& panel = *a.view.ActivePanel();
        a.click(panel.RecordButton());
        // Two seconds: the take stops in the middle of the speech.
        for (std::size_t at = 0; at + 11025 <= std::min<std::size_t>(speech.samples.size(), 44100); at += 11025)
            a.capture(std::vector<std::int16_t>(speech.samples.begin() + at, speech.samples.begin() + at + 11025));
        QVERIFY(a.view.Recording);
        a.view.repaint();
        const QString name = spectrum ? "live-spectrum" : "live-spectrogram";
        QVERIFY(a.view.grab().save(QString("screenshots/%1-1024x768.png").arg(name)));
        a.click(panel.RecordButton());
    }
    a.client.write("wv001.wav", waveBytes(speech.samples, 22050));
    a.view.ShowSpectrogramPage();
    QCOMPARE(a.view.OpenRecording(0, 1), 1);
    dragInStrip(a.view, a.view.layout().GraphLeft + 100, a.view.layout().GraphLeft + 400);
    a.view.Zoom();
    a.view.OnPlay();
    // Zoomed on the spectrogram page a chunk is about two pixels of the graph, and every header is queued at once;
    // the cursor starts at 1 and moves one step per chunk back.
    const int width = a.view.layout().GraphWidth;
    const std::int64_t chunks = a.view.playback().chunkCount;
    QVERIFY(chunks >= width / 2 && chunks < width / 2 + 10);
    QCOMPARE(a.output.queued(), static_cast<std::size_t>(chunks));
    a.output.play(static_cast<std::size_t>(chunks / 3));
    pumpDeviceEvents();
    const float step = chunks > width ? 1.0f : static_cast<float>(width) / static_cast<float>(chunks);
    QCOMPARE(a.view.playback().cursorPosition, 1.0f + static_cast<float>(chunks / 3) * step);
    a.view.repaint();
    QVERIFY(a.view.grab().save("screenshots/zoomed-play-cursor-1024x768.png"));
    a.view.OnPlay();  // the same command stops it
    QVERIFY(!a.view.Playing && a.view.zoomed());
    QCOMPARE(a.view.playback().cursorPosition, 0.0f);
}

QTEST_MAIN(ViewAudioTest)
#include "ViewAudio_test.moc"
