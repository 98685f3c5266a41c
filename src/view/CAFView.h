// The main view of the window: the recording on screen with its spectrogram or power spectrum over the overview
// strip, the selection and the zoom, the read-outs; or, with nothing loaded, the empty view with the program's
// logo and its line of text. The display mode changes here and nowhere else.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include <QImage>
#include <QPixmap>
#include <QStringList>
#include <QWidget>
#include <QtGlobal>

#include "analysis/FormantTracker.h"
#include "analysis/InputLevel.h"
#include "analysis/PowerSpectrum.h"
#include "analysis/Spectrogram.h"
#include "audio/ChunkedPlayback.h"
#include "audio/WaveDevice.h"
#include "controls/VolumeSlider.h"
#include "panels/ClassAux.h"
#include "panels/CurveOverlays.h"
#include "panels/PanelDefaults.h"
#include "panels/SpectrogramPicture.h"
#include "panels/SpectrumPicture.h"
#include "store/GraphLabel.h"
#include "store/LoadedRecording.h"
#include "store/OpenOtherFile.h"
#include "store/RecordingFiles.h"
#include "view/BackgroundWork.h"
#include "view/CAFDoc.h"
#include "view/DisplayMode.h"
#include "view/Selection.h"
#include "view/ViewCommands.h"
#include "view/ViewLayout.h"
#include "view/WaveStrip.h"

class CMyBarra;
class CMyBarra2;
class QAction;
class QMenu;
class QTimer;
struct Prompt;
class WavePlayer;
class WaveRecorder;

inline constexpr std::string_view kEmptyViewLine =
    QT_TRANSLATE_NOOP("Sonalys", "Voice and speech analysis for speech therapy");
// A step of loading that cannot fail today; its message is kept for the day it reads more about the file.
inline constexpr std::string_view kNoAdditionalInformation = QT_TRANSLATE_NOOP(
    "Sonalys", "Attention!\nIt was not possible to read additional information about the sound file!");

// The working message of the frame while the F0 curve is computed; the formant tracker declares its own.
inline constexpr std::string_view kCalculatingF0 = QT_TRANSLATE_NOOP("Sonalys", "Calculating F0...");

// The end of a take: the question for a client's recording, and what a failed copy of a take made without a
// client says.
inline constexpr std::string_view kSaveActualFile =
    QT_TRANSLATE_NOOP("Sonalys", "Do you Want to save the actual File?");
inline constexpr std::string_view kErrorSavingFile = QT_TRANSLATE_NOOP("Sonalys", "Error saving File.");
// The working message while a play of a paused capture is stopped.
inline constexpr std::string_view kPleaseWait = QT_TRANSLATE_NOOP("Sonalys", "Please, Wait ....");
// Said while the first seconds of a take hold nothing but silence: the default input is likely the wrong one.
inline constexpr std::string_view kInputSilent = QT_TRANSLATE_NOOP(
    "Sonalys", "No sound reaches the input: check the microphone, its level, and the default input of the system.");

// Where a take made without a client goes: a path chosen in a save dialog that starts in `folder`, or an empty path
// for Cancel. Tests put a scripted answer in its place.
using TakeSaveChooser = std::function<std::filesystem::path(const std::filesystem::path& folder)>;

class CAFView : public QWidget, public PanelAudio, private WaveInEvents, private WaveOutEvents {
    Q_OBJECT
public:
    explicit CAFView(Prompt& prompt, QWidget* parent = nullptr);
    ~CAFView() override;

    DisplayMode displayMode() const { return m_displayMode; }
    // Closes what is open and goes back to the empty view, repainted at once.
    void ShowEmpty();
    // Ends the sound before what is on screen changes: a play stops, and a take ends with its save question.
    void StopAudio();

    // Idle means neither recording nor playing; the commands follow these.
    bool Recording = false;
    bool Playing = false;
    bool isIdle() const { return !Recording && !Playing; }
    // The input the recording engine listens to, for the caption beside the graph: microphone or line.
    bool LineInput = false;
    // What an edit left for the commands: 2 when something cut or copied waits to be pasted.
    int EditKind = 0;

    // Lays the view out for a screen of `screen` size; the main window sets it once at start.
    void setScreenSize(QSize screen);
    const ViewLayout& layout() const { return m_layout; }

    // The client in work, whose recordings OpenRecording opens and whose name titles the document.
    void setCurrentClient(const ClientFolder& folder, const QString& name);
    CAFDoc* document() const { return m_doc; }

    // Opens recording `number` of the current client: kinds 1 and 3 are qv sounds, every other kind a wv sound.
    // Returns 1, or 0 after "Error Reading File" with the view empty.
    int OpenRecording(int kind, int number);
    // Opens a sound file from anywhere: only 11025, 22050 and 44100 Hz and 16 bits are taken, and a stereo file is
    // folded to one channel as chosen in the dialog "Open File". Returns 1, or 0 with the view empty.
    int OpenRecordingFile(const std::filesystem::path& path);
    // Frees the samples and leaves the view empty; called by everything that changes what is on screen.
    void CloseRecording();
    // The files of recording `number` of the current client were deleted: when it is the one on screen, the view
    // goes empty without writing anything beside the deleted sound.
    void RecordingDeleted(int number);
    // The commands of the Mode menu.
    void ShowSpectrogramPage();
    void ShowSpectrumPage();
    // Everything drawn again after a change of data or of range: the page, the picture, the strip.
    void RedrawAll();
    // Shows the selection alone, or back the whole recording; a single level that toggles.
    void Zoom();

    // The dynamic range or the colour scheme of the spectrogram settings changed: the picture takes the new palette
    // at once, with no new analysis.
    void ApplyPalette();

    // One block of samples captured or played on a live page: on the spectrogram page the newest column, painted
    // twice at the next two columns (which stop at the graph's right end); on the power-spectrum page the spectrum
    // of the newest samples, folded into the average; and the block, or on the spectrum page its first half, on the
    // live strip.
    void DrawLiveBlock(std::span<const std::int16_t> block);

    // The curves over the spectrogram, as the F0 and Formants boxes of the side panel ask for them. Shown, a curve
    // is computed when the samples loaded have none yet (formants after F0, whose unvoiced frames make their gaps)
    // and drawn; hidden, it is removed and the other overlay stays. Every redraw of the page draws the shown ones.
    void RedrawF0(bool show);
    void RedrawFormants(bool show);
    bool f0Shown() const;
    bool formantsShown() const;
    const F0Track& f0Track() const { return m_f0Track; }
    const FormantTrack& formantTrack() const { return m_formantTrack; }
    // Where the F0 scale's range comes from: the main window's setting; until one is given, the range at start.
    void setF0RangeSource(std::function<F0Range()> source) { m_f0RangeSource = std::move(source); }
    F0Range f0Range() const { return m_f0RangeSource ? m_f0RangeSource() : kStartF0Range; }
    // The F0 range changed: the curve and its scale are drawn again when shown.
    void F0RangeChanged();
    // The numeric F0 read-out above the graph, for the play and record engines: `hz` in navy, blanked when it is 0
    // (an unvoiced frame) or while the F0 curve is not shown. On the live spectrogram page the view itself writes
    // the estimate of every fifth block while the F0 curve is shown.
    void ShowF0Readout(float hz);
    float f0Readout() const { return m_f0Readout; }

    // The dialog that asks how to fold a stereo file; tests put a scripted answer in its place.
    void setStereoChooser(StereoChooser chooser) { m_chooseStereo = std::move(chooser); }

    const LoadedRecording& loadedRecording() const { return m_recording; }
    SampleRange shownRange() const { return {m_firstShown, m_lastShown}; }
    bool zoomed() const { return m_zoomed; }
    bool hasSelection() const { return m_hasSelection; }
    bool dragging() const { return m_dragging; }
    int selStartX() const { return m_selStartX; }
    int selEndX() const { return m_selEndX; }
    int rate() const;

    // The command of `id`, with the text of the table; commands not built yet stay disabled.
    QAction* action(int id) const;
    CommandState commandState() const;
    // Brings the enabled and checked state of every command up to date.
    void UpdateCommands();
    // The texts of the commands and of the page in the language in force.
    void retranslate();
    QMenu* contextMenu() const { return m_contextMenu; }

    // The panel settings, at their defaults until the side panels exist.
    SpectrogramSettings& spectrogramSettings() { return m_spectrogramSettings; }
    SpectrumSettings& spectrumSettings() { return m_spectrumSettings; }
    Spectrogram& spectrogramObject() { return m_spectrogramObject; }
    PowerSpectrum& spectrumObject() { return m_spectrumObject; }
    const SpectrogramPicture& picture() const { return m_picture; }
    LiveTrace& liveTrace() { return m_liveTrace; }

    // The page without the overlays, and the finished graph that read-out boxes are erased from; both at the
    // resolution of the device.
    const QImage& backBitmap() const { return m_backBitmap; }
    const QImage& savedGraph() const { return m_savedGraph; }
    // The read-out box in page pixels, empty when none is up, and its lines.
    QRect readOutBox() const { return m_readOutBox; }
    const QStringList& readOutLines() const { return m_readOutLines; }
    // The spectrogram's pixels on the device: where the picture is painted one column per pixel.
    QRect pictureDeviceRect() const;

    // ---- The two volume sliders beside the graph: the speakers' master level and the recording input's level. The
    // main window gives them their mixer lines; the view places them under the input captions and hides them on the
    // empty view.
    VolumeSlider* masterSlider() const { return m_masterSlider; }
    VolumeSlider* inputSlider() const { return m_inputSlider; }

    // ---- Side panels and the audio engines
    // The panel of the page on screen: CMyBarra on the spectrogram page, CMyBarra2 on the power-spectrum page, none
    // on the empty view.
    ClassAux* ActivePanel() const;
    CMyBarra* spectrogramPanel() const { return m_spectrogramPanel; }
    CMyBarra2* spectrumPanel() const { return m_spectrumPanel; }
    // Both panels, for what they show alike whichever page is on screen.
    std::array<ClassAux*, 2> bothPanels() const;
    // The single capture and playback engines, owned by the main window; none in a view on its own.
    void setAudioEngines(WaveRecorder* recorder, WavePlayer* player);
    // The record format chosen with the panel's rate button (an index of the record-format table: 3, 5 or 7 from
    // the button): the recorder takes it, and the live pages follow its rate.
    void SetRecordFormat(int index);
    // A modal dialog keeps the window from serving the sound: while it is open a play pauses and captured buffers
    // are thrown away, and both are given back when it closes.
    void HoldAudioForDialog(bool hold);
    // Captured buffers are thrown away while this is set: an open list or a recomputation holds the window.
    bool RecordPaused = false;
    bool isPlaying() const override { return Playing; }
    bool isZoomed() const override { return m_zoomed; }
    void PausePlay() override;
    void RestartPlay() override;
    void SetRecordPaused(bool paused) override { RecordPaused = paused; }
    void ArmCursor() override { m_play.cursorArmed = true; }

    // ---- Recording
    // The Record button of either panel and the Record command: a new take of the current client when none runs,
    // otherwise the end of the take, its save question, and the take on screen as a file.
    void OnRecord();
    // The pause-record button: a paused take is loaded so that it can be looked at and played; pressed again,
    // capture goes on where it stopped.
    void OnPauseRecord();
    // Bytes received since the take began (while recording), or the play's position.
    std::int64_t bytePosition() const { return m_play.bytePosition; }
    const InputLevel& inputLevel() const { return m_inputLevel; }
    // The save dialog of a take made without a client.
    void setTakeSaveChooser(TakeSaveChooser chooser) { m_chooseTakePath = std::move(chooser); }

    // ---- Playing
    // The Play command of the menus and of the strip's menu: the selection, the zoomed range or the whole
    // recording; while a play runs, the same command stops it.
    void OnPlay();
    // The Play button of a panel, which also plays a paused take whole.
    void OnPlayButton();
    // The pause-play button: pauses a play, or lets it go on.
    void OnPausePlay();
    // Stops a play and waits until the device has closed.
    void StopPlaying();
    const ChunkedPlayback& playback() const { return m_play; }

signals:
    // The state the commands depend on has changed.
    void commandsChanged();
    // A working message for the frame ("Calculating F0..."), or an empty text when the work is done.
    void busyText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // The devices' events, delivered on this thread one by one.
    void waveInOpened() override;
    void waveInData(WaveHeader& header) override;
    void waveInClosed() override;
    void waveInFailed(int code) override;
    void waveOutOpened() override;
    void waveOutDone(WaveHeader& header) override;
    void waveOutClosed() override;
    void waveOutFailed(int code) override;

    struct CommandAction {
        int id;
        QAction* action;
        void (CAFView::*run)();  // null: the command is not built yet
    };

    void createCommands();
    int loadFileSteps(DisplayMode remembered);
    bool loadRecordingPath();
    void applyRate(int rate);
    void resetLivePage();
    void showFailedOpening();
    void computePicture();
    void ensureSpectrum();
    void sharpenPicture();

    // The curves: computed on demand, forgotten with the samples, drawn over a copy of the page.
    void ensureCurves();
    void invalidateCurves();
    void drawOverlays();
    bool overlaysApply() const;
    void drawCurves(QPainter& painter);
    void drawLiveDots(QPainter& painter, QRect graph, std::int64_t total, int scheme, std::size_t from = 0);
    void drawReadout(QPainter& painter) const;
    QRect readoutRect() const;
    void liveBlock(std::span<const std::int16_t> block, std::int64_t dotSample);
    void paintLiveParts(int firstColumn, int lastColumn);
    void paintElapsedTime();
    int pageColumn(int deviceColumn) const;
    void estimateLiveF0();

    // The page drawn anew into the off-screen images; a redraw of the strip drops any selection.
    void rebuildPage(bool dropSelection = true);
    void drawPage(QPainter& painter);
    void drawEmpty(QPainter& painter);
    void drawSpectrogramPage(QPainter& painter);
    void drawSpectrumPage(QPainter& painter);
    void drawLivePage(QPainter& painter);
    void drawTextRows(QPainter& painter);
    SpectrumArea pictureArea() const;
    QString durationText() const;

    QPoint pagePoint(QPointF widgetPosition) const;
    QRect widgetRect(const QRect& pageRect) const;
    void removeSelection();
    void openContextMenu(QPoint globalPosition);
    void updateReadOut(QPoint page);
    void clearReadOut();
    bool canRun(int id) const;

    // Side panels: made once, placed over the band above the graph through the page's mapping, and what each of
    // their changes does to the pictures.
    void createPanels();
    void placePanels();
    void openRateMenu(ClassAux& panel);
    void applyPanelOfPage();
    void redrawKeepingSelection();
    void onSpectrogramChange();
    void onBand(int hz);
    void onSpectrogramLimit(int hz);
    void onSpectrumLimit(int hz);
    void onDynamicRange(int range);
    void onColourScheme(int scheme);
    void onFftSize(int size);
    void onSpectrumStyle(SpectrumStyle style);
    void onLtas(bool on);
    void onCurveColour(const QColor& colour);
    void onUpdateRate(int bytes, int index);
    void redrawSpectrumPage(bool withoutPlay);

    // Recording: the steps of a start and of a stop, the live display, and a take paused and resumed.
    void StartRecording();
    void StopRecording();
    bool startTake();
    void endTake();
    void keepOrDropTake();
    void showTake();
    void liveDisplay(std::span<const std::int16_t> block);
    void watchForSilence(std::span<const std::int16_t> block);
    void pauseCapture();
    void resumeCapture();
    void showRecordButtons(bool recording);
    void restorePausedPage();

    // Playing: the three kinds of play, the cursor of a zoomed play, and the end of a play.
    bool openPlayer();
    void playWhole();
    void playCapture();
    void playCaptureSelection(int selectionStart);
    bool playOnce(std::int64_t first, std::int64_t length);
    bool startChunkedPlay(std::int64_t from, std::int64_t chunkSamples);
    void StepCursor();
    void drawCursorLine(QPainter& painter, float position) const;
    std::int64_t liveDotSample(std::int64_t bytePosition);
    void playEnded();
    void showPlayButtons(bool playing);
    bool livePass() const;
    void restartPlayAtNewRate();

    Prompt& m_prompt;
    CAFDoc* m_doc;
    ViewLayout m_layout;
    DisplayMode m_displayMode = DisplayMode::ModeEmpty;
    LoadedRecording m_recording;
    GraphLabelTable m_labels;
    ClientFolder m_client;
    QString m_clientName;
    WaveFormat m_recordFormat;  // the record engine's format: 11025 Hz, 16 bits, mono at start

    // Selection and zoom; the selection is in page pixels of the strip.
    std::int64_t m_firstShown = 0;
    std::int64_t m_lastShown = 0;
    bool m_zoomed = false;
    int m_selStartX = 0;
    int m_selStartY = 0;
    int m_selEndX = 0;
    bool m_dragging = false;
    bool m_hasSelection = false;
    int m_dragLastX = 0;

    // Analysis objects, made once and kept for the life of the view.
    Spectrogram m_spectrogramObject;
    PowerSpectrum m_spectrumObject;
    std::optional<PowerSpectrum::Result> m_wholeSpectrum;  // of the samples now loaded, under its own settings
    SpectrogramSettings m_spectrogramSettings;
    SpectrumSettings m_spectrumSettings;
    SpectrogramPicture m_picture;
    bool m_pictureComputed = false;
    bool m_computing = false;
    LiveTrace m_liveTrace;
    int m_liveColumn = 0;          // the next column of the live spectrogram
    int m_liveDirtyFrom = 0;       // the first column computed but not yet painted
    int m_blocksSincePaint = 0;    // live blocks computed since the last paint
    DeferredPrompt m_curvePrompt;  // the formant tracker's messages, from its worker thread
    FormantTracker m_formantObject{m_curvePrompt};
    F0Track m_f0Track;
    FormantTrack m_formantTrack;
    bool m_computingCurves = false;
    std::function<F0Range()> m_f0RangeSource;
    float m_f0Readout = 0.0f;  // Hz; 0 shows a blank read-out
    int m_liveF0Blocks = 0;    // live blocks since the last estimate

    QImage m_backBitmap;
    bool m_backStale = false;  // live painting went to the finished picture alone
    QImage m_savedGraph;
    QRect m_readOutBox;
    QStringList m_readOutLines;
    QPixmap m_logo;
    StereoChooser m_chooseStereo;
    std::vector<CommandAction> m_commands;
    QMenu* m_contextMenu = nullptr;
    QTimer* m_sharpenTimer = nullptr;

    void placeSliders();
    VolumeSlider* m_masterSlider = new VolumeSlider(this);
    VolumeSlider* m_inputSlider = new VolumeSlider(this);

    CMyBarra* m_spectrogramPanel = nullptr;
    CMyBarra2* m_spectrumPanel = nullptr;
    WaveRecorder* m_recorder = nullptr;
    WavePlayer* m_player = nullptr;

    // The take in progress: the live picture and strip kept while it is paused (and played), and
    // whether its first seconds were silent.
    TakeSaveChooser m_chooseTakePath;
    int m_pauseColumn = 0;
    std::optional<SpectrogramPicture> m_pausedPicture;
    std::optional<LiveTrace> m_pausedTrace;
    InputLevel m_inputLevel;           // of the take, for the panels' meters and the save question
    std::int64_t m_silentSamples = 0;  // samples of the take checked for sound, up to a few seconds
    bool m_soundHeard = false;

    // The play in progress, its cursor, and the curve dots of a live pass: the sample shown at each column.
    ChunkedPlayback m_play;
    const std::int16_t* m_playBase = nullptr;  // the samples the play's offsets count from
    std::int64_t m_playCount = 0;
    bool m_playingCapture = false;   // the samples of a paused take are being played
    bool m_pausedForDialog = false;  // a modal dialog paused the play and owes it a restart
    std::vector<std::int64_t> m_liveDotSamples;
};
