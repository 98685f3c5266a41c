#include "panels/CMyBarra.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include "panels/CColorMenu.h"
#include "panels/PanelDefaults.h"

namespace {

const std::vector<std::string_view> kUpdateRateLines = {"1.0 ms  ", "1.5 ms  ", "2.0 ms",
                                                        "2.5 ms  ", "3.0 ms  ", "4.0 ms  "};
const std::vector<std::string_view> kBandLines = {"10   Hz   ", "40   Hz   ", "80   Hz   ",
                                                  "150 Hz   ",  "300 Hz   ",  "400 Hz   "};
// The lines the Limit list holds until the rate first fills it.
const std::vector<std::string_view> kResourceLimitLines = {"5512   Hz         ", "7350   Hz       ", "11025 Hz       "};
constexpr int kDefaultResourceLimit = 2;

constexpr int kStripLeft = 210;  // in page pixels of the panel, on the small layout
constexpr int kStripTop = 10;
constexpr QColor kCaptionLine(0, 0, 180);
constexpr int kCaptionWidth = 40;
constexpr int kRangeStep = 10;  // what Page Up and Page Down move the pointer by, in dB

}  // namespace

CMyBarra::CMyBarra(QWidget* parent) : ClassAux(kUpdateRateLines, kResourceLimitLines, kDefaultResourceLimit, parent) {
    setObjectName("CMyBarra");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    keepText(this, kTipDynamicRange, true);
    setStripOrigin(kStripLeft, kStripTop);
    SetRect(QRect(kStripLeft - 4 + 2 * kDefaultDynamicRange, kStripTop - 10, 10, 10));

    m_colors = new QToolButton(this);
    m_colors->setObjectName(QStringLiteral("control%1").arg(kIdColors));
    m_colors->setFocusPolicy(Qt::StrongFocus);
    m_colors->setToolButtonStyle(Qt::ToolButtonTextOnly);
    keepText(m_colors, kCaptionColors, false);
    keepText(m_colors, kTipColors, true);
    connect(m_colors, &QToolButton::clicked, this, &CMyBarra::OpenColorMenu);

    m_band = addList(kIdBand, kBandLines, kDefaultBandEntry);
    keepText(m_band, kTipBand, true);
    watchList(m_band, Hold::Band);
    connect(m_band, &QComboBox::activated, this, &CMyBarra::ApplyBand);

    const auto addCheck = [this](int id, std::string_view caption, std::string_view tip, bool on) {
        auto* box = new QCheckBox(this);
        box->setObjectName(QStringLiteral("control%1").arg(id));
        box->setChecked(on);
        keepText(box, caption, false);
        keepText(box, tip, true);
        return box;
    };
    m_f0 = addCheck(kIdF0, kCaptionF0, kTipF0, false);
    m_formants = addCheck(kIdFormants, kCaptionFormants, kTipFormants, false);
    m_spectrogram = addCheck(kIdSpectrogramCheck, kCaptionSpectrogram, kTipSpectrogram, true);
    connect(m_f0, &QCheckBox::toggled, this, &CMyBarra::f0Toggled);
    connect(m_formants, &QCheckBox::toggled, this, &CMyBarra::formantsToggled);
    connect(m_spectrogram, &QCheckBox::toggled, this, &CMyBarra::showSpectrogram);

    place(m_colors, {414, 13, 46, 22});
    place(addCaption(kCaptionBand), {464, 0, 70, 12});
    place(m_band, {464, 13, 70, 22});
    place(addCaption(kCaptionLimit), {538, 0, 78, 12});
    place(m_limit, {538, 13, 78, 22});
    // The Spectrogram box takes the room to the page's edge: its caption is the longest in some languages.
    place(m_f0, {618, 3, 79, 20});
    place(m_formants, {618, 25, 79, 20});
    place(m_spectrogram, {698, 3, 102, 20});
    setPageSize(QSize(800, 48), QSize(860, 58));
    setTabOrder(m_updateRate, this);
    setTabOrder(this, m_colors);
    layOut();
}

bool CMyBarra::f0Checked() const { return m_f0->isChecked(); }
bool CMyBarra::formantsChecked() const { return m_formants->isChecked(); }
bool CMyBarra::spectrogramChecked() const { return m_spectrogram->isChecked(); }

int CMyBarra::dynamicRange() const { return spectrogramChecked() ? m_rememberedRange : 0; }

void CMyBarra::ApplyBand() {
    emit bandChanged(static_cast<int>(LeadingNumber(m_band->currentText())));
    returnFocus();
}

// ---------------------------------------------------------------------------------------------------------------
// Colours and the "Spectrogram" check box

void CMyBarra::OpenColorMenu() {
    holdAudio(Hold::Colors);
    CColorMenu menu(m_colourScheme, std::min(scaleX(), scaleY()), this);
    const int command = menu.exec(m_colors->mapToGlobal(QPoint(0, m_colors->height())));
    if (command != 0) OnColorCommand(command);
    releaseAudio(Hold::Colors);
}

void CMyBarra::OnColorCommand(int command) {
    if (command < kFirstColourCommand || command > kFirstColourCommand + 2) return;
    m_colourScheme = command - kFirstColourCommand;
    update();
    emit colourSchemeChanged(m_colourScheme);
}

// Off, the spectrogram shows nothing: the range goes to 0 and the pointer greys, while the strip keeps showing
// the range it will come back to.
void CMyBarra::showSpectrogram(bool on) {
    SetBitmap(on ? kPointerLive : kPointerGreyed);
    emit dynamicRangeChanged(dynamicRange());
}

// ---------------------------------------------------------------------------------------------------------------
// The dynamic range pointer

void CMyBarra::SetDynamicRange(int range) {
    placePointer(stripRect().left() - 4 + 2 * range);
    rangeChanged();
}

void CMyBarra::placePointer(int left) {
    const int stripLeft = stripRect().left();
    QRect pointer = pointerRect();
    pointer.moveLeft(std::clamp(left, stripLeft - 4, stripLeft + 194));
    SetRect(pointer);
}

void CMyBarra::rangeChanged() {
    m_rememberedRange = Value();
    setRecordPausedForChange(true);
    update();
    emit dynamicRangeChanged(dynamicRange());
    setRecordPausedForChange(false);
}

void CMyBarra::mousePressEvent(QMouseEvent* event) {
    const QPoint at = pagePoint(event->position());
    if (event->button() == Qt::LeftButton && HitTest(at.x(), at.y()) && bitmap() == kPointerLive) m_dragging = true;
    setFocus(Qt::MouseFocusReason);
}

void CMyBarra::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = pagePoint(event->position());
    if (HitTest(at.x(), at.y())) {
        setCursor(Qt::PointingHandCursor);
    } else if (!m_dragging) {
        unsetCursor();
    }
    const QRect strip = stripRect();
    if (!m_dragging || !(event->buttons() & Qt::LeftButton)) return;
    if (at.x() > strip.left() + strip.width() - 2 || at.y() < strip.top() - 5 || at.y() > strip.top() + 25) return;
    const int before = pointerRect().left();
    placePointer(at.x() - 5);
    if (pointerRect().left() != before) rangeChanged();
}

void CMyBarra::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_dragging) return;
    m_dragging = false;
    // The picture is copied anew from the recoloured image: a play of the whole recording waits meanwhile.
    PanelAudio* sound = audio();
    const bool pause = sound != nullptr && sound->isPlaying() && !sound->isZoomed();
    if (pause) sound->PausePlay();
    emit dynamicRangeChanged(dynamicRange());
    if (pause) sound->RestartPlay();
}

void CMyBarra::keyPressEvent(QKeyEvent* event) {
    // The arrows move the pointer as the mouse does, 2 pixels (1 dB) at a time.
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down: step = -2; break;
    case Qt::Key_Right:
    case Qt::Key_Up: step = 2; break;
    case Qt::Key_PageDown: step = -2 * kRangeStep; break;
    case Qt::Key_PageUp: step = 2 * kRangeStep; break;
    case Qt::Key_Home: step = -kStripWidth; break;
    case Qt::Key_End: step = kStripWidth; break;
    default: QWidget::keyPressEvent(event); return;
    }
    if (bitmap() != kPointerLive) return;
    const int before = pointerRect().left();
    placePointer(before + step);
    if (pointerRect().left() != before) rangeChanged();
}

void CMyBarra::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.scale(scaleX(), scaleY());
    drawStrip(painter);
    Erase(painter);
    Draw(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(stripRect().adjusted(-6, -11, 6, 24));
    }
}

void CMyBarra::drawStrip(QPainter& painter) const {
    const QRect strip = stripRect();
    // With "Spectrogram" off the strip still shows the range that comes back with it.
    const int range = m_rememberedRange;
    const Palette colours = BuildPalette(range, m_colourScheme);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(strip.adjusted(0, 0, -1, -1));
    for (int i = 0; i < 98; ++i) {
        const Rgb& c = colours[static_cast<std::size_t>(i)];
        painter.fillRect(QRect(strip.left() + 1 + 2 * i, strip.top() + 1, 2, strip.height() - 2),
                         QColor(c.red, c.green, c.blue));
    }
    // The caption: a dark blue line from the strip's left to the pointer, ticked at both ends, and the range.
    const QRect caption(strip.left() - 4, strip.bottom() + 1, strip.width() + 8, 20);
    painter.fillRect(caption, palette().color(QPalette::Window));
    const int pointerX = std::min(pointerRect().center().x() + 1, strip.left() + strip.width() - 2);
    const int lineY = strip.bottom() + 4;
    painter.setPen(QPen(kCaptionLine, 0));
    painter.drawLine(strip.left(), lineY, pointerX, lineY);
    painter.drawLine(strip.left(), lineY - 2, strip.left(), lineY + 2);
    painter.drawLine(pointerX, lineY - 2, pointerX, lineY + 2);
    QFont arial("Arial");
    arial.setPixelSize(12);
    painter.setFont(arial);
    painter.setPen(Qt::black);
    const int textLeft = std::clamp(pointerX - kCaptionWidth / 2, strip.left(), strip.right() - kCaptionWidth);
    const QRect text(textLeft, lineY + 2, kCaptionWidth, 13);
    painter.fillRect(text, Qt::white);
    painter.drawText(text, Qt::AlignCenter, QString::asprintf("%02d dB", range));
}
