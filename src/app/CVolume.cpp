#include "app/CVolume.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/DialogButtons.h"
#include "app/MixerVolumes.h"
#include "audio/SoundServerMixer.h"
#include "controls/UiText.h"
#include "controls/VolumeSlider.h"

namespace {
constexpr int kSliderHeight = 160;
}

CVolume::CVolume(MixerVolumes& mixer, int recordInput, QWidget* parent) : QDialog(parent), m_mixer(mixer) {
    setWindowTitle(uiText(kVolumeDialogTitle));
    auto* columns = new QGridLayout;
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    addColumn(MixerLine::Master, kMasterCaption);
    addColumn(MixerLine::Wave, kWaveCaption);
    addColumn(MixerLine::Input, recordInput == kLineInput ? kLineCaption : kMicCaption);
    for (std::size_t i = 0; i < m_sliders.size(); ++i) {
        const int column = static_cast<int>(i);
        columns->addWidget(m_captions[i], 0, column, Qt::AlignHCenter);
        columns->addWidget(m_sliders[i], 1, column, Qt::AlignHCenter);
    }
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(uiText(kCloseButton), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void CVolume::addColumn(MixerLine line, std::string_view caption) {
    const auto i = static_cast<std::size_t>(line);
    m_captions[i] = new QLabel(uiText(caption), this);
    auto* slider = new VolumeSlider(this);
    slider->setMinimumHeight(kSliderHeight);
    m_sliders[i] = slider;
    m_mixer.attachSlider(line, *slider);
}
