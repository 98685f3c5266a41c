#include "panels/ClassAux.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QLabel>
#include <QPainter>
#include <QPolygon>
#include <QToolButton>

#include "controls/LevelMeter.h"
#include "controls/UiText.h"
#include "panels/PanelDefaults.h"

namespace {

// The wide layout of larger screens moves the strip and everything right of it by this much, and all down by
// kWideShiftY.
constexpr int kWideShiftX = 60;
constexpr int kWideShiftY = 5;
constexpr int kWideFromX = 200;  // controls from this x of the small layout on move right
constexpr int kFontPixels = 10;  // the panels' text, in page pixels
constexpr int kIconPixels = 16;
constexpr int kPointerWidth = 10;
constexpr int kPointerHeight = 10;

constexpr std::array<const char*, 5> kIconFiles = {"play", "stop", "pause", "record", "rate"};

QIcon panelIcon(PanelIcon icon) {
    return QIcon(QString(":/panels/%1.svg").arg(QLatin1String(kIconFiles[static_cast<int>(icon)])));
}

}  // namespace

int UpdateRateBytes(int rate, double entry) { return static_cast<int>(rate / 60.0 * entry); }

double LeadingNumber(const QString& line) {
    const std::string text = line.trimmed().toStdString();
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

ClassAux::ClassAux(const std::vector<std::string_view>& updateRateLines,
                   const std::vector<std::string_view>& limitLines, int defaultLimit, QWidget* parent)
    : QWidget(parent), m_background(palette().color(QPalette::Window)) {
    setAutoFillBackground(true);
    SetOwner(parent);
    for (std::size_t i = 0; i < m_icons.size(); ++i) m_icons[i] = panelIcon(static_cast<PanelIcon>(i));
    m_record = addButton(kIdRecordButton, PanelIcon::Record, kTipRecord);
    m_pauseRecord = addButton(kIdPauseRecordButton, PanelIcon::Pause, kTipPauseRecord);
    m_rateButton = addButton(kIdRateButton, PanelIcon::Rate, kTipRate);
    m_play = addButton(kIdPlayButton, PanelIcon::Play, kTipPlay);
    m_pausePlay = addButton(kIdPausePlayButton, PanelIcon::Pause, kTipPausePlay);
    connect(m_record, &QToolButton::clicked, this, &ClassAux::recordClicked);
    connect(m_pauseRecord, &QToolButton::clicked, this, &ClassAux::pauseRecordClicked);
    connect(m_rateButton, &QToolButton::clicked, this, &ClassAux::rateClicked);
    connect(m_play, &QToolButton::clicked, this, &ClassAux::playClicked);
    connect(m_pausePlay, &QToolButton::clicked, this, &ClassAux::pausePlayClicked);
    m_pauseRecord->setEnabled(false);
    m_play->setEnabled(false);
    m_pausePlay->setEnabled(false);
    m_inputMeter = new LevelMeter(this);

    m_updateRate = addList(kIdUpdateRate, updateRateLines, 3);
    keepText(m_updateRate, kTipUpdateRate, true);
    watchList(m_updateRate, Hold::UpdateRate);
    connect(m_updateRate, &QComboBox::activated, this, &ClassAux::ApplyUpdateRate);
    m_limit = addList(kIdLimit, limitLines, defaultLimit);
    keepText(m_limit, kTipLimit, true);
    watchList(m_limit, Hold::Limit);
    connect(m_limit, &QComboBox::activated, this, &ClassAux::ApplyLimit);

    // The buttons and the Update Rate list stand alike on both panels.
    place(m_record, {2, 12, 22, 22});
    place(m_pauseRecord, {26, 12, 22, 22});
    // The input meter takes the free row above the two record buttons, up to the rate button's caption.
    place(m_inputMeter, {2, 3, 42, 7});
    place(m_rateButton, {50, 12, 22, 22});
    place(addCaption(kCaptionRate), {44, 0, 34, 12});
    place(m_play, {78, 12, 22, 22});
    place(m_pausePlay, {102, 12, 22, 22});
    place(addCaption(kCaptionUpdateRate), {126, 0, 82, 12});
    place(m_updateRate, {128, 13, 78, 22});
}

// ---------------------------------------------------------------------------------------------------------------
// The pointer

void ClassAux::SetBitmap(int id) {
    m_bitmap = id;
    update();
}

void ClassAux::setStripOrigin(int left, int top) {
    m_stripLeft = left;
    m_stripTop = top;
}

int ClassAux::Value() const { return 2 - ((m_pointer.left() - m_stripLeft) * 100) / -196; }

void ClassAux::Erase(QPainter& painter) const { painter.fillRect(m_pointer, m_background); }

void ClassAux::Draw(QPainter& painter) const {
    // A triangle over the strip, pointing down at the value.
    const QRect r = m_pointer;
    const QPolygon triangle(
        {QPoint(r.left(), r.top()), QPoint(r.right() + 1, r.top()), QPoint(r.left() + r.width() / 2, r.bottom() + 1)});
    const bool live = m_bitmap == kPointerLive;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(live ? QColor(120, 0, 0) : QColor(110, 110, 110), 0.8));
    painter.setBrush(live ? QColor(220, 0, 0) : QColor(170, 170, 170));
    painter.drawPolygon(triangle);
    painter.restore();
}

// ---------------------------------------------------------------------------------------------------------------
// Controls

QToolButton* ClassAux::addButton(int id, PanelIcon icon, std::string_view tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("control%1").arg(id));
    button->setFocusPolicy(Qt::StrongFocus);
    showIcon(button, icon);
    keepText(button, tip, true);
    return button;
}

QComboBox* ClassAux::addList(int id, const std::vector<std::string_view>& lines, int selected) {
    auto* list = new QComboBox(this);
    list->setObjectName(QStringLiteral("control%1").arg(id));
    list->setFocusPolicy(Qt::StrongFocus);
    for (const std::string_view line : lines) list->addItem(QString::fromUtf8(line.data(), qsizetype(line.size())));
    list->setCurrentIndex(selected);
    return list;
}

QLabel* ClassAux::addCaption(std::string_view text) {
    auto* label = new QLabel(this);
    label->setAlignment(Qt::AlignCenter);
    keepText(label, text, false);
    return label;
}

void ClassAux::keepText(QWidget* widget, std::string_view text, bool tip) {
    m_texts.push_back({widget, text, tip});
    if (tip) {
        widget->setToolTip(uiText(text));
        widget->setAccessibleName(uiText(text));
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        label->setText(uiText(text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setText(uiText(text));
    }
}

void ClassAux::retranslate() {
    const std::vector<Text> texts = std::move(m_texts);
    m_texts.clear();
    for (const Text& text : texts) keepText(text.widget, text.text, text.tip);
}

void ClassAux::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}

bool ClassAux::shows(const QAbstractButton* button, PanelIcon icon) const {
    return button->icon().cacheKey() == m_icons[static_cast<int>(icon)].cacheKey();
}

void ClassAux::showIcon(QAbstractButton* button, PanelIcon icon) const {
    button->setIcon(m_icons[static_cast<int>(icon)]);
}

bool ClassAux::capturePausedByButton() const { return shows(m_pauseRecord, PanelIcon::Record); }

void ClassAux::EnablePlay(bool enabled) { m_play->setEnabled(enabled); }

void ClassAux::Reset() {
    showIcon(m_play, PanelIcon::Play);
    showIcon(m_pausePlay, PanelIcon::Pause);
    m_pausePlay->setEnabled(false);
}

void ClassAux::ShowRecording(bool recording) {
    showIcon(m_record, recording ? PanelIcon::Stop : PanelIcon::Record);
    showIcon(m_pauseRecord, PanelIcon::Pause);
    m_pauseRecord->setEnabled(recording);
}

void ClassAux::ShowPlaying(bool playing) {
    showIcon(m_play, playing ? PanelIcon::Stop : PanelIcon::Play);
    showIcon(m_pausePlay, PanelIcon::Pause);
    m_pausePlay->setEnabled(playing);
}

// ---------------------------------------------------------------------------------------------------------------
// Update Rate and Limit

void ClassAux::SetUpdateRateIndex(int index) {
    if (index >= 0 && index < m_updateRate->count()) m_updateRate->setCurrentIndex(index);
}

void ClassAux::ApplyUpdateRate() {
    const int bytes = UpdateRateBytes(m_rate, LeadingNumber(m_updateRate->currentText()));
    emit updateRateChanged(bytes, m_updateRate->currentIndex());
    returnFocus();
}

void ClassAux::ApplyLimit() {
    const double hz = LeadingNumber(m_limit->currentText());
    if (hz > 0.0) emit limitChanged(static_cast<int>(hz));
    returnFocus();
}

void ClassAux::FillLimitList(int rate) {
    m_rate = rate;
    m_limit->clear();
    for (const int hz : LimitEntries(rate)) m_limit->addItem(QString::asprintf("%d Hz", hz));
    if (m_limit->count() > kDefaultLimitEntry) {
        m_limit->setCurrentIndex(kDefaultLimitEntry);
        ApplyLimit();
    }
    returnFocus();
}

void ClassAux::returnFocus() {
    if (m_owner != nullptr && isVisible()) m_owner->setFocus(Qt::OtherFocusReason);
}

// ---------------------------------------------------------------------------------------------------------------
// Holds

void ClassAux::holdAudio(Hold kind) {
    if (m_audio == nullptr) return;
    // The Update Rate list leaves a zoomed play running: its cursor line would stop where it stands.
    const bool pausePlay = m_audio->isPlaying() && (kind != Hold::UpdateRate || !m_audio->isZoomed());
    if (pausePlay) {
        m_audio->PausePlay();
        m_rememberedPlaying = true;
    }
    if ((!pausePlay || kind == Hold::Band) && !capturePausedByButton()) m_audio->SetRecordPaused(true);
}

void ClassAux::releaseAudio(Hold kind) {
    if (m_audio == nullptr) return;
    const bool resumed = m_rememberedPlaying;
    if (resumed) {
        m_rememberedPlaying = false;
        m_audio->RestartPlay();
        if (kind == Hold::UpdateRate && shows(m_pausePlay, PanelIcon::Play)) showIcon(m_pausePlay, PanelIcon::Pause);
        if ((kind == Hold::Limit || kind == Hold::Colors) && m_audio->isZoomed()) m_audio->ArmCursor();
    }
    if ((!resumed || kind == Hold::Band) && !capturePausedByButton()) m_audio->SetRecordPaused(false);
}

void ClassAux::watchList(QComboBox* list, Hold kind) {
    QObject* popup = list->view();
    m_lists.push_back({list, popup, kind});
    list->installEventFilter(this);
    // Closing the list gives the focus back to the view, which ends the hold.
    popup->installEventFilter(this);
}

bool ClassAux::eventFilter(QObject* watched, QEvent* event) {
    for (const auto& [list, popup, kind] : m_lists) {
        if (watched == popup && event->type() == QEvent::Hide) {
            returnFocus();
            break;
        }
        if (watched != list) continue;
        // The list's own popup takes the focus for a moment: that is no leaving.
        if (event->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            holdAudio(kind);
        } else if (event->type() == QEvent::FocusOut &&
                   static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            releaseAudio(kind);
        }
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------------------------------------------
// Layout

QSize ClassAux::pageSize(bool wide) const { return wide ? m_wideSize : m_smallSize; }

QRect ClassAux::placed(QRect at) const {
    if (m_wide) at.translate(at.left() >= kWideFromX ? kWideShiftX : 0, kWideShiftY);
    const auto x = [this](double v) { return static_cast<int>(std::lround(v * m_scaleX)); };
    const auto y = [this](double v) { return static_cast<int>(std::lround(v * m_scaleY)); };
    return QRect(QPoint(x(at.left()), y(at.top())),
                 QPoint(x(at.left() + at.width()) - 1, y(at.top() + at.height()) - 1));
}

void ClassAux::setPageScale(bool wide, double scaleX, double scaleY) {
    // The view places its panel on every redraw of the page; only a new size lays the controls out again.
    if (wide == m_wide && scaleX == m_scaleX && scaleY == m_scaleY && !m_placements.empty() &&
        m_placements.front().widget->geometry() == placed(m_placements.front().at))
        return;
    const bool moved = wide != m_wide;
    m_wide = wide;
    m_scaleX = scaleX;
    m_scaleY = scaleY;
    if (moved) {
        const QPoint shift = wide ? QPoint(kWideShiftX, kWideShiftY) : QPoint(-kWideShiftX, -kWideShiftY);
        m_pointer.translate(shift);
        setStripOrigin(m_stripLeft + shift.x(), m_stripTop + shift.y());
    }
    layOut();
}

void ClassAux::layOut() {
    const double scale = std::min(m_scaleX, m_scaleY);
    QFont font = this->font();
    font.setPixelSize(std::max(6, static_cast<int>(std::lround(kFontPixels * scale))));
    const int icon = std::max(8, static_cast<int>(std::lround(kIconPixels * scale)));
    for (const Placement& p : m_placements) {
        p.widget->setGeometry(placed(p.at));
        p.widget->setFont(font);
        if (auto* button = qobject_cast<QToolButton*>(p.widget)) button->setIconSize(QSize(icon, icon));
    }
    update();
}

QPoint ClassAux::pagePoint(QPointF widget) const {
    return QPoint(static_cast<int>(std::floor(widget.x() / m_scaleX)),
                  static_cast<int>(std::floor(widget.y() / m_scaleY)));
}
