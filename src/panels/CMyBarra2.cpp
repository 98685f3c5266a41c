#include "panels/CMyBarra2.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include "controls/UiText.h"
#include "panels/CColorMenu.h"
#include "panels/CMyBarra.h"

namespace {

const std::vector<std::string_view> kUpdateRateLines = {"3.0   ms  ", "5.0   ms  ", "6.0   ms",
                                                        "7.0   ms  ", "8.0   ms",   "10.0 ms  "};
const std::vector<std::string_view> kFftSizeLines = {"256      ", "512", "1024"};
// The lines the Limit list holds until the rate first fills it.
const std::vector<std::string_view> kResourceLimitLines = {"5512   Hz         ", "7350   Hz       ", "11025 Hz       "};
constexpr int kDefaultResourceLimit = 1;

}  // namespace

CMyBarra2::CMyBarra2(QWidget* parent) : ClassAux(kUpdateRateLines, kResourceLimitLines, kDefaultResourceLimit, parent) {
    setObjectName("CMyBarra2");

    m_colors = new QToolButton(this);
    m_colors->setObjectName(QStringLiteral("control%1").arg(kIdColors));
    m_colors->setFocusPolicy(Qt::StrongFocus);
    m_colors->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    showIcon(m_colors, PanelIcon::Rate);
    keepText(m_colors, kCaptionColors, false);
    keepText(m_colors, kTipCurveColour, true);
    connect(m_colors, &QToolButton::clicked, this, &CMyBarra2::OpenColorMenu);

    m_fftSize = addList(kIdFftSize, kFftSizeLines, kDefaultFftSizeEntry);
    keepText(m_fftSize, kTipFftSize, true);
    connect(m_fftSize, &QComboBox::activated, this, &CMyBarra2::ApplyFftSize);

    m_style = addList(kIdVisualisation, {}, 0);
    fillStyles();
    keepText(m_style, kTipVisualisation, true);
    connect(m_style, &QComboBox::activated, this,
            [this](int line) { emit styleChanged(line == 1 ? SpectrumStyle::Line : SpectrumStyle::Solid); });

    m_ltas = new QCheckBox(this);
    m_ltas->setObjectName(QStringLiteral("control%1").arg(kIdLtas));
    keepText(m_ltas, kCaptionLtas, false);
    keepText(m_ltas, kTipLtas, true);
    connect(m_ltas, &QCheckBox::toggled, this, &CMyBarra2::ltasToggled);

    place(m_colors, {214, 13, 66, 22});
    // The caption takes the free room of its row on both sides of the list: it is longer in some languages.
    place(addCaption(kCaptionFftSize), {280, 0, 68, 12});
    place(m_fftSize, {284, 13, 60, 22});
    place(addCaption(kCaptionLimit), {348, 0, 78, 12});
    place(m_limit, {348, 13, 78, 22});
    place(addCaption(kCaptionVisualisation), {430, 0, 80, 12});
    place(m_style, {430, 13, 80, 22});
    place(m_ltas, {514, 13, 58, 22});
    setPageSize(QSize(574, 40), QSize(634, 50));
    layOut();
}

void CMyBarra2::fillStyles() {
    const int line = std::max(0, m_style->currentIndex());
    m_style->clear();
    m_style->addItems({uiText(kStyleSolid), uiText(kStyleLine)});
    m_style->setCurrentIndex(line);
}

void CMyBarra2::retranslate() {
    ClassAux::retranslate();
    if (m_style != nullptr) fillStyles();
}

void CMyBarra2::ApplyFftSize() { emit fftSizeChanged(static_cast<int>(LeadingNumber(m_fftSize->currentText()))); }

void CMyBarra2::OpenColorMenu() {
    CColorMenu2 menu(m_colourIndex, std::min(scaleX(), scaleY()), this);
    const int command = menu.exec(m_colors->mapToGlobal(QPoint(0, m_colors->height())));
    if (command != 0) OnColorCommand(command);
}

void CMyBarra2::OnColorCommand(int command) {
    const int line = command - kFirstColourCommand;
    m_colourIndex = line;
    emit curveColourChanged(CColorMenu2::LineColour(line, palette().color(QPalette::WindowText)));
}
