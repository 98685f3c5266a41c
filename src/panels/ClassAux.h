// What the two side panels above the graph share: the record and play buttons, whose pictures are their state, the
// Update Rate and Limit lists, the holds that keep the audio from stalling while a list is open, the layout that
// scales the panel with the page, and the small triangular pointer that can be dragged over a strip.
#pragma once

#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include <QColor>
#include <QIcon>
#include <QRect>
#include <QWidget>
#include <QtGlobal>

class LevelMeter;
class QAbstractButton;
class QComboBox;
class QLabel;
class QPainter;
class QToolButton;

// The control numbers of the panels, kept as the controls' object names ("control1025").
inline constexpr int kIdUpdateRate = 1011;
inline constexpr int kIdBand = 1012;
inline constexpr int kIdLimit = 1013;
inline constexpr int kIdVisualisation = 1014;
inline constexpr int kIdFftSize = 1015;
inline constexpr int kIdPlayButton = 1024;
inline constexpr int kIdRecordButton = 1025;
inline constexpr int kIdPausePlayButton = 1026;
inline constexpr int kIdColors = 1030;
inline constexpr int kIdRateButton = 1031;
inline constexpr int kIdLtas = 1032;
inline constexpr int kIdPauseRecordButton = 1033;
inline constexpr int kIdFormants = 1034;
inline constexpr int kIdF0 = 1036;
inline constexpr int kIdSpectrogramCheck = 1041;

// The pointer's two pictures: live (red) and greyed.
inline constexpr int kPointerLive = 198;
inline constexpr int kPointerGreyed = 200;

inline constexpr std::string_view kCaptionUpdateRate = QT_TRANSLATE_NOOP("Sonalys", "Update Rate");
inline constexpr std::string_view kCaptionLimit = QT_TRANSLATE_NOOP("Sonalys", "Limit");
inline constexpr std::string_view kCaptionRate = QT_TRANSLATE_NOOP("Sonalys", "rate");
inline constexpr std::string_view kCaptionColors = QT_TRANSLATE_NOOP("Sonalys", "Colors");
inline constexpr std::string_view kTipRecord = QT_TRANSLATE_NOOP("Sonalys", "Start or stop recording");
inline constexpr std::string_view kTipPauseRecord = QT_TRANSLATE_NOOP("Sonalys", "Pause or resume the recording");
inline constexpr std::string_view kTipRate = QT_TRANSLATE_NOOP("Sonalys", "Choose the sample rate of new recordings");
inline constexpr std::string_view kTipPlay = QT_TRANSLATE_NOOP("Sonalys", "Play or stop the recording");
inline constexpr std::string_view kTipPausePlay = QT_TRANSLATE_NOOP("Sonalys", "Pause or resume playing");
inline constexpr std::string_view kTipUpdateRate =
    QT_TRANSLATE_NOOP("Sonalys", "How often the picture follows the sound while recording or playing");
inline constexpr std::string_view kTipLimit = QT_TRANSLATE_NOOP("Sonalys", "Highest frequency shown");

// The pictures the buttons show; what a button shows is its state.
enum class PanelIcon { Play, Stop, Pause, Record, Rate };

// What a panel asks of the audio. A list that drops down or a long recomputation keeps the window from serving the
// sound devices, so while one is open playback pauses and the buffers captured meanwhile are thrown away.
class PanelAudio {
public:
    virtual ~PanelAudio() = default;
    virtual bool isPlaying() const = 0;
    virtual bool isZoomed() const = 0;  // a play of the zoomed range moves a cursor line over the graph
    virtual void PausePlay() = 0;
    virtual void RestartPlay() = 0;
    virtual void SetRecordPaused(bool paused) = 0;
    virtual void ArmCursor() {}  // a zoomed play's cursor line is drawn again at its next step
};

// The bytes of one capture buffer for the Update Rate line `entry` (the number on the line) at `rate` Hz: the
// line's "ms" is a name only.
int UpdateRateBytes(int rate, double entry);
// The number a list line starts with ("1.5 ms  " gives 1.5, "5512 Hz" 5512); 0 when it starts with none.
double LeadingNumber(const QString& line);

class ClassAux : public QWidget {
    Q_OBJECT
public:
    // What the list being opened (or a dialog, which stops the window the same way) holds back, and gives back when
    // its focus goes.
    enum class Hold { UpdateRate, Band, Limit, Colors };
    void holdAudio(Hold kind);
    void releaseAudio(Hold kind);
    // Where a control stands on the panel, in page pixels of the small layout.
    struct Placement {
        QWidget* widget;
        QRect at;
    };

    // The strip of the pointer, in page pixels of the panel.
    static constexpr int kStripWidth = 198;
    static constexpr int kStripHeight = 15;

    // ---- the pointer over its strip
    void SetOwner(QWidget* owner) { m_owner = owner; }
    QWidget* owner() const { return m_owner; }
    void SetBitmap(int id);
    int bitmap() const { return m_bitmap; }
    void SetRect(const QRect& rect) { m_pointer = rect; }
    QRect pointerRect() const { return m_pointer; }
    bool HitTest(int x, int y) const { return m_pointer.contains(x, y); }
    void Erase(QPainter& painter) const;
    void Draw(QPainter& painter) const;
    // The value the pointer stands at, 0 to 100: read back from its position, so a pointer placed at 70 reads 71.
    int Value() const;
    QRect stripRect() const { return QRect(m_stripLeft, m_stripTop, kStripWidth, kStripHeight); }

    // ---- the operations the view and the audio use without knowing which panel it is
    virtual void ApplyUpdateRate();
    virtual void ApplyLimit();
    virtual void FillLimitList(int rate);
    // The wide layout of larger screens moves the controls; `scaleX`, `scaleY` are widget pixels per page pixel.
    void setPageScale(bool wide, double scaleX, double scaleY);
    // The panel's size in page pixels.
    QSize pageSize(bool wide) const;
    int rate() const { return m_rate; }
    // The Update Rate line chosen at start, as the last session left it; out of range keeps the default.
    void SetUpdateRateIndex(int index);
    void setAudio(PanelAudio* audio) { m_audio = audio; }

    QToolButton* PlayButton() const { return m_play; }
    QToolButton* RecordButton() const { return m_record; }
    QToolButton* PausePlayButton() const { return m_pausePlay; }
    QToolButton* PauseRecordButton() const { return m_pauseRecord; }
    QToolButton* RateButton() const { return m_rateButton; }
    // The level of the input while recording, above the record and pause-record buttons.
    LevelMeter* InputMeter() const { return m_inputMeter; }
    QComboBox* UpdateRateBox() const { return m_updateRate; }
    QComboBox* LimitBox() const { return m_limit; }

    // Whether `button` shows `icon`, and putting it there.
    bool shows(const QAbstractButton* button, PanelIcon icon) const;
    void showIcon(QAbstractButton* button, PanelIcon icon) const;
    // Capture paused by the pause-record button, which then shows the record picture.
    bool capturePausedByButton() const;
    // A file loaded or not: Play works on a loaded file alone. Back to idle, Play shows its play picture.
    void EnablePlay(bool enabled);
    void Reset();
    // The buttons' pictures and enabled states while recording or playing, or after.
    void ShowRecording(bool recording);
    void ShowPlaying(bool playing);

    // The texts in the language in force.
    virtual void retranslate();

signals:
    void recordClicked();
    void playClicked();
    void pausePlayClicked();
    void pauseRecordClicked();
    void rateClicked();
    // The capture buffer changes to `bytes`, from Update Rate line `index`.
    void updateRateChanged(int bytes, int index);
    void limitChanged(int hz);

protected:
    ClassAux(const std::vector<std::string_view>& updateRateLines, const std::vector<std::string_view>& limitLines,
             int defaultLimit, QWidget* parent);

    // Each list holds the audio while it has the focus, and gives the focus to the view when it closes.
    void watchList(QComboBox* list, Hold kind);
    void returnFocus();

    QComboBox* addList(int id, const std::vector<std::string_view>& lines, int selected);
    QToolButton* addButton(int id, PanelIcon icon, std::string_view tip);
    QLabel* addCaption(std::string_view text);
    void place(QWidget* widget, QRect at) { m_placements.push_back({widget, at}); }
    void layOut();
    void setStripOrigin(int left, int top);
    double scaleX() const { return m_scaleX; }
    double scaleY() const { return m_scaleY; }
    bool wide() const { return m_wide; }
    // Page pixels of the panel from widget pixels.
    QPoint pagePoint(QPointF widget) const;
    // The translated caption of each caption label and tip of each control.
    void keepText(QWidget* widget, std::string_view text, bool tip);
    void setPageSize(QSize small, QSize wide) {
        m_smallSize = small;
        m_wideSize = wide;
    }

    PanelAudio* audio() const { return m_audio; }
    // Buffers captured during a change are thrown away, unless capture is already paused by its button.
    void setRecordPausedForChange(bool paused) {
        if (m_audio != nullptr && !capturePausedByButton()) m_audio->SetRecordPaused(paused);
    }

    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

    QComboBox* m_updateRate = nullptr;
    QComboBox* m_limit = nullptr;

private:
    QRect placed(QRect at) const;

    QWidget* m_owner = nullptr;
    int m_bitmap = kPointerLive;
    QRect m_pointer;
    QColor m_background;
    PanelAudio* m_audio = nullptr;
    std::array<QIcon, 5> m_icons;
    QToolButton* m_record = nullptr;
    QToolButton* m_pauseRecord = nullptr;
    QToolButton* m_rateButton = nullptr;
    QToolButton* m_play = nullptr;
    QToolButton* m_pausePlay = nullptr;
    LevelMeter* m_inputMeter = nullptr;

    int m_stripLeft = 0;
    int m_stripTop = 0;
    int m_rate = 11025;
    bool m_rememberedPlaying = false;  // a play the open list paused, to be resumed when it closes
    struct WatchedList {
        QComboBox* list;
        QObject* popup;  // the list's drop-down view
        Hold kind;
    };
    std::vector<WatchedList> m_lists;
    std::vector<Placement> m_placements;
    struct Text {
        QWidget* widget;
        std::string_view text;
        bool tip;
    };
    std::vector<Text> m_texts;
    QSize m_smallSize;
    QSize m_wideSize;
    bool m_wide = false;
    double m_scaleX = 1.0;
    double m_scaleY = 1.0;
};
